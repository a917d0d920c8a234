WScript.Echo Round(2.5), FormatNumber(2.5, 0)
' expect: 2 3
WScript.Echo Round(0.125, 2), FormatNumber(0.125, 2)
' expect: 0.12 0.13
