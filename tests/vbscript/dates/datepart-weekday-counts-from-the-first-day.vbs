WScript.Echo DatePart("w", #11/21/2026#, vbMonday)
' expect: 6
WScript.Echo DatePart("w", #11/21/2026#, vbSaturday)
' expect: 1
