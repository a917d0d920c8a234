Select Case 9
  Case 1
    WScript.Echo "one"
  Case 2
    WScript.Echo "two"
End Select
WScript.Echo "end"
' expect: end
