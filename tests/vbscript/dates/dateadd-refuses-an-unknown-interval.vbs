WScript.Echo DateAdd("yy", 1, #1/1/2026#)
' expect error: 5 at 1:0
