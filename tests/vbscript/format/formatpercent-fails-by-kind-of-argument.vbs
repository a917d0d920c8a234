On Error Resume Next
x = FormatPercent(Null)
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatPercent("x")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatPercent(1, 2, 3)
WScript.Echo Err.Number
' expect: 5
Err.Clear
