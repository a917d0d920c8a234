WScript.Echo DateDiff("w", #11/16/2026#, #11/22/2026#)
' expect: 0
WScript.Echo DateDiff("w", #11/16/2026#, #11/23/2026#)
' expect: 1
WScript.Echo DateDiff("w", #11/23/2026#, #11/17/2026#)
' expect: 0
WScript.Echo DateDiff("w", #11/23/2026#, #11/16/2026#)
' expect: -1
