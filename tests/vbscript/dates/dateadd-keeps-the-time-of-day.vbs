WScript.Echo DateAdd("m", 1, #1/31/2026 3:45:30 PM#)
' expect: 2/28/2026 3:45:30 PM
WScript.Echo DateAdd("d", -1, #1/1/2026 11:59:59 PM#)
' expect: 12/31/2025 11:59:59 PM
