WScript.Echo FormatPercent(-0.5), FormatPercent(-0.77, 2, 0, -1)
' expect: -50.00% (77.00%)
