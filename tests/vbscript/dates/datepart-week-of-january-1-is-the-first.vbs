WScript.Echo DatePart("ww", #1/1/2026#)
' expect: 1
WScript.Echo DatePart("ww", #1/4/2026#)
' expect: 2
WScript.Echo DatePart("ww", #12/31/2000#)
' expect: 54
