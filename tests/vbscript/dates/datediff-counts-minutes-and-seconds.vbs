WScript.Echo DateDiff("n", #10:00:59 AM#, #10:01:00 AM#)
' expect: 1
WScript.Echo DateDiff("s", #10:00:59 AM#, #10:02:00 AM#)
' expect: 61
WScript.Echo DateDiff("s", #1/2/2026#, #1/1/2026#)
' expect: -86400
