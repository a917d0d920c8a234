On Error Resume Next
x = Weekday(1, 8)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = Weekday(1, -1)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = Weekday(1, Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = Weekday("x")
WScript.Echo Err.Number
' expect: 13
Err.Clear
