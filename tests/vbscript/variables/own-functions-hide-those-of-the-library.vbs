Function Trim(s)
  Trim = "<" & s & ">"
End Function
WScript.Echo Trim(" a ")
' expect: < a >
