WScript.Echo FormatPercent(0.005, 2, 0)
' expect: .50%
WScript.Echo FormatPercent(12.345, 1)
' expect: 1,234.5%
WScript.Echo FormatPercent(12.345, 1, -1, 0, 0)
' expect: 1234.5%
