WScript.Echo FormatNumber(-0.001)
' expect: -0.00
