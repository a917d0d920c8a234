WScript.Echo FormatDateTime("2026-11-21", 1)
' expect: Saturday, November 21, 2026
WScript.Echo FormatDateTime(38000, 2)
' expect: 1/14/2004
WScript.Echo FormatDateTime(-1.25)
' expect: 12/29/1899 6:00:00 AM
