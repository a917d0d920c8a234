WScript.Echo FormatCurrency(0.5, 2, 0)
' expect: $.50
WScript.Echo FormatCurrency(1234567, 0, -2, -2, 0)
' expect: $1234567
