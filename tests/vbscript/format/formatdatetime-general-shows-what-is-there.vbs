WScript.Echo FormatDateTime(#11/21/2026#)
' expect: 11/21/2026
WScript.Echo FormatDateTime(#3:45:00 PM#)
' expect: 3:45:00 PM
WScript.Echo FormatDateTime(Empty)
' expect: 12:00:00 AM
