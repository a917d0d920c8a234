WScript.Echo DateAdd("m", 1, DateAdd("m", 1, #1/31/1995#))
' expect: 3/28/1995
WScript.Echo DateAdd("m", 2, #1/31/1995#)
' expect: 3/31/1995
