WScript.Echo Day(-1.25), Hour(-1.25)
' expect: 29 6
WScript.Echo Day(-0.25), Hour(-0.25)
' expect: 30 6
WScript.Echo CDate(-1.25)
' expect: 12/29/1899 6:00:00 AM
