WScript.Echo FormatNumber(0.5, 2, 0), FormatNumber(-0.5, 2, 0)
' expect: .50 -.50
WScript.Echo FormatNumber(0.5, 2, -1), FormatNumber(0.5, 2, -2)
' expect: 0.50 0.50
WScript.Echo FormatNumber(10.5, 2, 0)
' expect: 10.50
