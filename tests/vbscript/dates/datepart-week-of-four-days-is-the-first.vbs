WScript.Echo DatePart("ww", #1/1/2027#, vbMonday, vbFirstFourDays)
' expect: 53
WScript.Echo DatePart("ww", #1/4/2027#, vbMonday, vbFirstFourDays)
' expect: 1
WScript.Echo DatePart("ww", #12/31/2024#, vbMonday, vbFirstFourDays)
' expect: 1
WScript.Echo DatePart("ww", #1/1/2023#, vbMonday, vbFirstFourDays)
' expect: 52
