WScript.Echo DateAdd("d", 1.4, #1/1/2026#)
' expect: 1/2/2026
WScript.Echo DateAdd("d", 1.5, #1/1/2026#)
' expect: 1/3/2026
WScript.Echo DateAdd("d", 2.5, #1/1/2026#)
' expect: 1/3/2026
