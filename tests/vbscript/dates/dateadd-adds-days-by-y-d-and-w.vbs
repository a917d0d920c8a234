WScript.Echo DateAdd("y", 1, #12/31/2026#)
' expect: 1/1/2027
WScript.Echo DateAdd("d", 1, #12/31/2026#)
' expect: 1/1/2027
WScript.Echo DateAdd("w", 1, #12/31/2026#)
' expect: 1/1/2027
