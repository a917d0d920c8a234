On Error Resume Next
x = MonthName(0)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = MonthName(13)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = MonthName(Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = MonthName("x")
WScript.Echo Err.Number
' expect: 13
Err.Clear
