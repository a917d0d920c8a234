WScript.Echo DateAdd("ww", 2, #11/21/2026#)
' expect: 12/5/2026
WScript.Echo DateAdd("ww", -1, #11/21/2026#)
' expect: 11/14/2026
