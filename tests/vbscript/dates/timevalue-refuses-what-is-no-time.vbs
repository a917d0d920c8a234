On Error Resume Next
x = TimeValue("25:00")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = TimeValue("abc")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = TimeValue("13/32/2026 3:45")
WScript.Echo Err.Number
' expect: 13
Err.Clear
