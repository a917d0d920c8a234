WScript.Echo DateDiff("ww", #11/21/2026#, #11/22/2026#, vbMonday)
' expect: 0
WScript.Echo DateDiff("ww", #11/22/2026#, #11/23/2026#, vbMonday)
' expect: 1
WScript.Echo DateDiff("ww", #11/20/2026#, #11/21/2026#, vbSaturday)
' expect: 1
