WScript.Echo DateDiff("ww", #11/21/2026#, #11/22/2026#)
' expect: 1
WScript.Echo DateDiff("ww", #11/22/2026#, #11/28/2026#)
' expect: 0
WScript.Echo DateDiff("ww", #11/22/2026#, #11/21/2026#)
' expect: -1
