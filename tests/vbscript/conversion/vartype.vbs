WScript.Echo VarType(Empty), VarType(Null), VarType(1), VarType(CLng(1)), VarType(CSng(1)), VarType(1.5), VarType(CCur(1))
' expect: 0 1 2 3 4 5 6
WScript.Echo VarType(#2000-01-01#), VarType("a"), VarType(Nothing), VarType(True), VarType(CByte(1)), VarType(Array())
' expect: 7 8 9 11 17 8204
WScript.Echo TypeName(VarType(1))
' expect: Integer
