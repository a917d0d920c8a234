WScript.Echo DateAdd("h", 25, #11/21/2026 10:00:00 AM#)
' expect: 11/22/2026 11:00:00 AM
WScript.Echo DateAdd("n", 90, #11/21/2026#)
' expect: 11/21/2026 1:30:00 AM
WScript.Echo DateAdd("s", -1, #11/21/2026#)
' expect: 11/20/2026 11:59:59 PM
