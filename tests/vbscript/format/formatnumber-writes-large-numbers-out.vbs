WScript.Echo FormatNumber(1E+20, 0)
' expect: 100,000,000,000,000,000,000
WScript.Echo FormatNumber(1E-20)
' expect: 0.00
