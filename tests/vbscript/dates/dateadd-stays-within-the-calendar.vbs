On Error Resume Next
x = DateAdd("d", 1, #12/31/9999#)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateAdd("yyyy", -2000, #1/1/2026#)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateAdd("s", -1, #1/1/100#)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = DateAdd("m", 2147483647, #1/1/2026#)
WScript.Echo Err.Number
' expect: 5
Err.Clear
