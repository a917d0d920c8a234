WScript.Echo FormatNumber(1.5, 0), FormatNumber(1.5, 1), FormatNumber(1.5, 5)
' expect: 2 1.5 1.50000
WScript.Echo FormatNumber(1.5, -1)
' expect: 1.50
