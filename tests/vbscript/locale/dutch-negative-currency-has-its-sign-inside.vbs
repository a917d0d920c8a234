' locale: nl-NL
WScript.Echo FormatCurrency(1234.5)
' expect: € 1.234,50
WScript.Echo FormatCurrency(-1234.5)
' expect: € -1.234,50
