On Error Resume Next
x = TimeSerial(40000, 0, 0)
WScript.Echo Err.Number
' expect: 6
Err.Clear
x = TimeSerial(0, Null, 0)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = TimeSerial("x", 0, 0)
WScript.Echo Err.Number
' expect: 13
Err.Clear
