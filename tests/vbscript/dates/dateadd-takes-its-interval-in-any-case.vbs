WScript.Echo DateAdd("YYYY", 1, #1/1/2026#)
' expect: 1/1/2027
WScript.Echo DateAdd("Ww", 1, #1/1/2026#)
' expect: 1/8/2026
