WScript.Echo DateDiff("h", #12/29/1899 6:00:00 PM#, #12/30/1899#)
' expect: 6
WScript.Echo DateDiff("d", #12/29/1899 6:00:00 PM#, #12/31/1899#)
' expect: 2
