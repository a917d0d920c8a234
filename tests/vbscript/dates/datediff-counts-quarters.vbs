WScript.Echo DateDiff("q", #3/31/2026#, #4/1/2026#)
' expect: 1
WScript.Echo DateDiff("q", #1/1/2026#, #3/31/2026#)
' expect: 0
WScript.Echo DateDiff("q", #1/1/2026#, #1/1/2028#)
' expect: 8
