' locale: de-CH
WScript.Echo FormatNumber(1234567.5), FormatCurrency(1234.5), CDbl("1'234.5")
' expect: 1'234'567.50 CHF 1'234.50 1234.5
