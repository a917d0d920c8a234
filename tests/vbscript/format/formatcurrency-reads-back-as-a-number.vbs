WScript.Echo CCur(FormatCurrency(-1234.5))
' expect: -1234.5
WScript.Echo CDbl(FormatCurrency(1234.5))
' expect: 1234.5
