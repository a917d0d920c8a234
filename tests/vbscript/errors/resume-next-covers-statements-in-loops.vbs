On Error Resume Next
For i = -1 To 1
  x = "none"
  x = 6 / i
  WScript.Echo i, x
Next
' expect: -1 -6
' expect: 0 none
' expect: 1 6
