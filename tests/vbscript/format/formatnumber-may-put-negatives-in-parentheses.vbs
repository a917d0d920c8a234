WScript.Echo FormatNumber(-1234.5, 2, -1, -1)
' expect: (1,234.50)
WScript.Echo FormatNumber(-1234.5, 2, -1, 0)
' expect: -1,234.50
WScript.Echo FormatNumber(-0.5)
' expect: -0.50
WScript.Echo FormatNumber(5, 2, -1, -1)
' expect: 5.00
