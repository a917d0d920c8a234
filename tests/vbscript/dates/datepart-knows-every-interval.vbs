WScript.Echo DatePart("yyyy", #11/21/2026 3:45:30 PM#)
' expect: 2026
WScript.Echo DatePart("q", #11/21/2026 3:45:30 PM#)
' expect: 4
WScript.Echo DatePart("m", #11/21/2026 3:45:30 PM#)
' expect: 11
WScript.Echo DatePart("y", #11/21/2026 3:45:30 PM#)
' expect: 325
WScript.Echo DatePart("d", #11/21/2026 3:45:30 PM#)
' expect: 21
WScript.Echo DatePart("w", #11/21/2026 3:45:30 PM#)
' expect: 7
WScript.Echo DatePart("ww", #11/21/2026 3:45:30 PM#)
' expect: 47
WScript.Echo DatePart("h", #11/21/2026 3:45:30 PM#)
' expect: 15
WScript.Echo DatePart("n", #11/21/2026 3:45:30 PM#)
' expect: 45
WScript.Echo DatePart("s", #11/21/2026 3:45:30 PM#)
' expect: 30
