WScript.Echo FormatNumber(1234567.891)
' expect: 1,234,567.89
WScript.Echo FormatNumber(0)
' expect: 0.00
WScript.Echo FormatNumber(-1234.5)
' expect: -1,234.50
WScript.Echo FormatNumber(999), FormatNumber(1000)
' expect: 999.00 1,000.00
