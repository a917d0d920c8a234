WScript.Echo DateDiff("s", #1/1/1900#, #1/1/2000#)
' expect error: 6 at 1:0
