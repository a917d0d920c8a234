WScript.Echo FormatCurrency(-1234.5)
' expect: ($1,234.50)
WScript.Echo FormatCurrency(-1234.5, 2, -1, -1)
' expect: ($1,234.50)
WScript.Echo FormatCurrency(-1234.5, 2, -1, 0)
' expect: -$1,234.50
