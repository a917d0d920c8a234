' expect: 8204
' expect: Variant()
WScript.Echo VarType(Array())
WScript.Echo TypeName(Array())
