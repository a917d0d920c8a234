On Error Resume Next
x = WeekdayName(0)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = WeekdayName(8)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = WeekdayName(1, False, 8)
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = WeekdayName(Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
