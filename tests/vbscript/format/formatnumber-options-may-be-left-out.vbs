WScript.Echo FormatNumber(-1234567, , , True)
' expect: (1,234,567.00)
WScript.Echo FormatNumber(1234567, 0, , , False)
' expect: 1234567
