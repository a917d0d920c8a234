WScript.Echo DateDiff("m", #1/31/2026#, #2/1/2026#)
' expect: 1
WScript.Echo DateDiff("m", #2/1/2026#, #1/31/2026#)
' expect: -1
WScript.Echo DateDiff("m", #1/1/2026#, #12/31/2027#)
' expect: 23
