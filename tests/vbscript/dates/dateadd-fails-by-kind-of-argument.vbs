On Error Resume Next
x = DateAdd("d", "x", 1)
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DateAdd("d", Null, 1)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = DateAdd(Null, 1, 1)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = DateAdd("d", 1, "x")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DateAdd("d", 3000000000, 1)
WScript.Echo Err.Number
' expect: 6
Err.Clear
