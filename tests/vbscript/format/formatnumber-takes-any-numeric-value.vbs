WScript.Echo FormatNumber("1,234.5")
' expect: 1,234.50
WScript.Echo FormatNumber(Empty), FormatNumber(True)
' expect: 0.00 -1.00
WScript.Echo FormatNumber(CCur(1234.5678))
' expect: 1,234.57
WScript.Echo FormatNumber("&HFF", 0)
' expect: 255
