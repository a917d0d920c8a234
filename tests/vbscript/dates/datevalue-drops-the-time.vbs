WScript.Echo DateValue("November 21, 2026 3:45 PM")
' expect: 11/21/2026
WScript.Echo DateValue(#11/21/2026 3:45:00 PM#)
' expect: 11/21/2026
WScript.Echo DateValue("3:45 PM")
' expect: 12:00:00 AM
