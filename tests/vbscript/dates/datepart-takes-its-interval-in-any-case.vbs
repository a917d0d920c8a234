WScript.Echo DatePart("YYYY", #11/21/2026#)
' expect: 2026
WScript.Echo DatePart("N", #3:45:00 PM#)
' expect: 45
