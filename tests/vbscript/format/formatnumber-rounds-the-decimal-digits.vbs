WScript.Echo FormatNumber(2.345, 2), FormatNumber(1.005, 2)
' expect: 2.35 1.01
WScript.Echo FormatNumber(9.995, 2)
' expect: 10.00
WScript.Echo FormatNumber(999999.995)
' expect: 1,000,000.00
