' An oddity that scripts have learned to put right.
WScript.Echo DatePart("ww", #12/29/2003#, vbMonday, vbFirstFourDays)
' expect: 53
WScript.Echo DatePart("ww", #12/30/2003#, vbMonday, vbFirstFourDays)
' expect: 1
WScript.Echo DatePart("ww", #12/30/2019#, vbMonday, vbFirstFourDays)
' expect: 53
