d = #11/21/2026 3:45:30 PM#
WScript.Echo FormatDateTime(d)
' expect: 11/21/2026 3:45:30 PM
WScript.Echo FormatDateTime(d, vbGeneralDate)
' expect: 11/21/2026 3:45:30 PM
WScript.Echo FormatDateTime(d, vbLongDate)
' expect: Saturday, November 21, 2026
WScript.Echo FormatDateTime(d, vbShortDate)
' expect: 11/21/2026
WScript.Echo FormatDateTime(d, vbLongTime)
' expect: 3:45:30 PM
WScript.Echo FormatDateTime(d, vbShortTime)
' expect: 15:45
