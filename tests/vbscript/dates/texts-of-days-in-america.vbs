WScript.Echo CDate("2/1/2026")
' expect: 2/1/2026
WScript.Echo CDate("2-1-2026")
' expect: 2/1/2026
WScript.Echo CDate("2/1/26")
' expect: 2/1/2026
WScript.Echo CDate("2026-02-01")
' expect: 2/1/2026
WScript.Echo CDate("2026/2/1")
' expect: 2/1/2026
WScript.Echo CDate("1 Feb 2026")
' expect: 2/1/2026
WScript.Echo CDate("Feb 1, 2026")
' expect: 2/1/2026
WScript.Echo CDate("February 1 2026")
' expect: 2/1/2026
WScript.Echo CDate("1-feb-26")
' expect: 2/1/2026
WScript.Echo CDate("Sunday, February 1, 2026")
' expect: 2/1/2026
WScript.Echo CDate("13/2/2026")
' expect: 2/13/2026
WScript.Echo CDate("Feb 2026")
' expect: 2/1/2026
