WScript.Echo DateDiff("d", #11/21/2026 11:59:59 PM#, #11/22/2026#)
' expect: 1
WScript.Echo DateDiff("y", #11/21/2026#, #11/21/2026 11:59:59 PM#)
' expect: 0
WScript.Echo DateDiff("d", #1/1/100#, #12/31/9999#)
' expect: 3615899
