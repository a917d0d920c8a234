WScript.Echo DateAdd("d", "3", "Nov 21, 2026")
' expect: 11/24/2026
WScript.Echo TypeName(DateAdd("d", 1, "11/21/2026"))
' expect: Date
