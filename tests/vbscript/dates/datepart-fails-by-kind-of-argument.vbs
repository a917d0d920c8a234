On Error Resume Next
x = DatePart("x", 1)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DatePart("d", "x")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DatePart("w", 1, 8)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DatePart("ww", 1, 1, -1)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DatePart("ww", 1, Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
