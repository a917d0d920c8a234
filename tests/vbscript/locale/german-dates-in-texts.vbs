' locale: de-DE
WScript.Echo CDate("1.2.2026"), CDate("21. Nov. 2026"), CDate("1.2.2026 15:45")
' expect: 01.02.2026 21.11.2026 01.02.2026 15:45:00
WScript.Echo Month("10.11.") , CDate("15.30")
' expect: 11 15:30:00
