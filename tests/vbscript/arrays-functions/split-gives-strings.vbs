' expect: String
' expect: 8204
a = Split("1 2")
WScript.Echo TypeName(a(0))
WScript.Echo VarType(a)
