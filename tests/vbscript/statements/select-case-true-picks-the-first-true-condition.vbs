n = 42
Select Case True
  Case n < 10
    WScript.Echo "one digit"
  Case n < 100
    WScript.Echo "two digits"
  Case n < 1000
    WScript.Echo "three digits"
End Select
' expect: two digits
