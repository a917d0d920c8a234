WScript.Echo FormatNumber(0.5, 0), FormatNumber(1.5, 0), FormatNumber(2.5, 0)
' expect: 1 2 3
WScript.Echo FormatNumber(-0.5, 0), FormatNumber(-2.5, 0)
' expect: -1 -3
WScript.Echo FormatNumber(0.125, 2)
' expect: 0.13
