WScript.Echo WeekdayName(1, False, vbMonday), WeekdayName(7, True, vbMonday)
' expect: Monday Sun
WScript.Echo WeekdayName(Weekday(#11/21/2026#, vbMonday), False, vbMonday)
' expect: Saturday
