Select Case "a"
  Case "A"
    WScript.Echo "upper"
  Case "a"
    WScript.Echo "lower"
End Select
' expect: lower
