WScript.Echo Weekday(#11/22/2026#)
' expect: 1
WScript.Echo Weekday(#11/21/2026#)
' expect: 7
WScript.Echo Weekday(#12/30/1899#)
' expect: 7
WScript.Echo Weekday(#1/1/100#)
' expect: 6
