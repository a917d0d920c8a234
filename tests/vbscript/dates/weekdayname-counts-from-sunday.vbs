WScript.Echo WeekdayName(1), WeekdayName(7)
' expect: Sunday Saturday
WScript.Echo WeekdayName(2, True)
' expect: Mon
WScript.Echo WeekdayName(Weekday(#11/21/2026#))
' expect: Saturday
