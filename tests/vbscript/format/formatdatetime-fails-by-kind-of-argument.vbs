On Error Resume Next
x = FormatDateTime(Null)
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatDateTime("abc")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatDateTime(1, 5)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = FormatDateTime(1, -1)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = FormatDateTime(1000000000)
WScript.Echo Err.Number
' expect: 6
Err.Clear
