Dim a(1), b()
WScript.Echo TypeName(a), VarType(a), IsArray(a)
' expect: Variant() 8204 True
WScript.Echo TypeName(b), IsArray(b)
' expect: Variant() True
WScript.Echo IsArray(5), IsArray(Empty)
' expect: False False
