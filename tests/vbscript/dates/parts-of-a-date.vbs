WScript.Echo Year(#11/21/2026#), Month(#11/21/2026#), Day(#11/21/2026#)
' expect: 2026 11 21
WScript.Echo Hour(#3:45:30 PM#), Minute(#3:45:30 PM#), Second(#3:45:30 PM#)
' expect: 15 45 30
