WScript.Echo DateAdd("q", 1, #11/30/2026#)
' expect: 2/28/2027
WScript.Echo DateAdd("q", -4, #11/30/2026#)
' expect: 11/30/2025
