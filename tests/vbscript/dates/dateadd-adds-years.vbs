WScript.Echo DateAdd("yyyy", 1, #11/21/2026#)
' expect: 11/21/2027
WScript.Echo DateAdd("yyyy", -127, #11/21/2026#)
' expect: 11/21/1899
