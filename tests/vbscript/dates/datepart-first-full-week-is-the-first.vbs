WScript.Echo DatePart("ww", #1/3/2026#, vbSunday, vbFirstFullWeek)
' expect: 52
WScript.Echo DatePart("ww", #1/4/2026#, vbSunday, vbFirstFullWeek)
' expect: 1
WScript.Echo DatePart("ww", #12/31/2023#, vbSunday, vbFirstFullWeek)
' expect: 53
