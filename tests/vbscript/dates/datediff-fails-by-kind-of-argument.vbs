On Error Resume Next
x = DateDiff("x", 1, 2)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateDiff("d", "x", 2)
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DateDiff("d", 1, 2, 8)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateDiff("d", 1, 2, 1, 4)
WScript.Echo Err.Number
' expect: 5
Err.Clear
