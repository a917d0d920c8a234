WScript.Echo TimeValue("11/21/2026 3:45 PM")
' expect: 3:45:00 PM
WScript.Echo TimeValue("15:45:30")
' expect: 3:45:30 PM
WScript.Echo TimeValue(#11/21/2026#)
' expect: 12:00:00 AM
WScript.Echo TimeValue("2:24PM")
' expect: 2:24:00 PM
