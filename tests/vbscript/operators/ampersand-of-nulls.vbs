WScript.Echo IsNull(Null & Null), VarType(Null & Empty), VarType(Empty & Empty), Len(Empty & Empty)
' expect: True 8 8 0
