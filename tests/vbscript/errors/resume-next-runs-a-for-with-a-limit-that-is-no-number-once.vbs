On Error Resume Next
x = 6
For x = 1 To Null
  n = n + 1
  WScript.Echo x, Err.Number
Next
' expect: 6 94
WScript.Echo n, x, Err.Number
' expect: 1 6 92
For x = 1 To "many"
  n = n + 1
  WScript.Echo x, Err.Number
Next
' expect: 6 13
WScript.Echo n, x, Err.Number
' expect: 2 6 92
For x = 1 To 3 Step Null
  n = n + 1
Next
WScript.Echo n, x, Err.Number
' expect: 3 6 92
For x = "first" To 3
  n = n + 1
Next
WScript.Echo n, x, Err.Number
' expect: 4 6 92
