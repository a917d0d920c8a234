' locale: it-IT
WScript.Echo Weekday(#11/21/2026#), Weekday(#11/21/2026#, vbUseSystem)
' expect: 7 6
WScript.Echo WeekdayName(1), WeekdayName(1, False, vbUseSystem)
' expect: domenica lunedì
WScript.Echo DatePart("ww", #1/3/2027#), DatePart("ww", #1/3/2027#, vbUseSystem, vbUseSystem)
' expect: 2 53
WScript.Echo DateDiff("ww", #11/21/2026#, #11/22/2026#, vbUseSystem)
' expect: 0
