WScript.Echo FormatPercent(0.125), FormatPercent(1), FormatPercent(2/32)
' expect: 12.50% 100.00% 6.25%
WScript.Echo FormatPercent(0.678999)
' expect: 67.90%
WScript.Echo FormatPercent(0.29, 0)
' expect: 29%
