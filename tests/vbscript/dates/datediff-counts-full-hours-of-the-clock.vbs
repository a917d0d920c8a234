WScript.Echo DateDiff("h", #10:59:00 AM#, #11:00:00 AM#)
' expect: 1
WScript.Echo DateDiff("h", #10:00:00 AM#, #10:59:00 AM#)
' expect: 0
