WScript.Echo DateAdd("m", 1, #1/31/1995#)
' expect: 2/28/1995
WScript.Echo DateAdd("m", 1, #1/31/1996#)
' expect: 2/29/1996
WScript.Echo DateAdd("m", 3, #1/31/1995#)
' expect: 4/30/1995
WScript.Echo DateAdd("m", -1, #3/31/2023#)
' expect: 2/28/2023
