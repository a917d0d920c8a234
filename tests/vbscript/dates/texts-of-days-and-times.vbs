WScript.Echo CDate("Nov 21, 2026 3:45 PM")
' expect: 11/21/2026 3:45:00 PM
WScript.Echo CDate("2026-11-21 15:45")
' expect: 11/21/2026 3:45:00 PM
WScript.Echo CDate("3:45 PM 11/21/2026")
' expect: 11/21/2026 3:45:00 PM
