WScript.Echo FormatCurrency(1234.5)
' expect: $1,234.50
WScript.Echo FormatCurrency(0)
' expect: $0.00
WScript.Echo FormatCurrency(1000000, 0)
' expect: $1,000,000
