WScript.Echo DateDiff("yyyy", #12/31/2025#, #1/1/2026#)
' expect: 1
WScript.Echo DateDiff("yyyy", #1/1/2025#, #12/31/2025#)
' expect: 0
WScript.Echo DateDiff("yyyy", #1/1/2026#, #1/1/2000#)
' expect: -26
