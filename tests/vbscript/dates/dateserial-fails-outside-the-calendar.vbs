On Error Resume Next
x = DateSerial(10000, 1, 1)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateSerial(-1, 1, 1)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateSerial(9999, 12, 32)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateSerial(32768, 1, 1)
WScript.Echo Err.Number
' expect: 6
Err.Clear
x = DateSerial(2026, 40000, 1)
WScript.Echo Err.Number
' expect: 6
Err.Clear
x = DateSerial(Null, 1, 1)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = DateSerial("x", 1, 1)
WScript.Echo Err.Number
' expect: 13
Err.Clear
