WScript.Echo Weekday(#11/21/2026#, vbUseSystem), WeekdayName(1, False, vbUseSystem)
' expect: 7 Sunday
WScript.Echo DatePart("ww", #1/3/2027#, vbUseSystem, vbUseSystem)
' expect: 2
