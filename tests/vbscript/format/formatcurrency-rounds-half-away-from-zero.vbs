WScript.Echo FormatCurrency(1.005), FormatCurrency(0.125), FormatCurrency(-0.125)
' expect: $1.01 $0.13 ($0.13)
