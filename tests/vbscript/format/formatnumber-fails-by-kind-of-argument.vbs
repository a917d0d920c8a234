On Error Resume Next
x = FormatNumber("")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatNumber("abc")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatNumber(1, -2)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = FormatNumber(1, 256)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = FormatNumber(1, 2, 1)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = FormatNumber(1, 2, 0, 0, -3)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = FormatNumber(1, Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
