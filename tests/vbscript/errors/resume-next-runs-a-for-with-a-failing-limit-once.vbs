On Error Resume Next
x = 6
For x = 1 To 1 / 0
  n = n + 1
  WScript.Echo x, Err.Number
Next
' expect: 6 11
WScript.Echo n, x, Err.Number
' expect: 1 6 92
