WScript.Echo Weekday(#11/21/2026#, vbMonday)
' expect: 6
WScript.Echo Weekday(#11/21/2026#, vbSaturday)
' expect: 1
WScript.Echo Weekday(#11/22/2026#, vbMonday)
' expect: 7
