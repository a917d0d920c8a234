WScript.Echo FormatNumber(-1234.5, 1, True, True, False)
' expect: (1234.5)
