WScript.Echo FormatNumber(1234567, 0, -1, 0, 0)
' expect: 1234567
WScript.Echo FormatNumber(1234567, 0, -1, 0, -1)
' expect: 1,234,567
WScript.Echo FormatNumber(1234567, 0, -1, 0, -2)
' expect: 1,234,567
