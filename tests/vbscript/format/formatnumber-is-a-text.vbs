WScript.Echo TypeName(FormatNumber(1))
' expect: String
