WScript.Echo DateAdd("yyyy", 1, #2/29/2024#)
' expect: 2/28/2025
WScript.Echo DateAdd("yyyy", 4, #2/29/2024#)
' expect: 2/29/2028
WScript.Echo DateAdd("yyyy", 76, #2/29/2024#)
' expect: 2/28/2100
