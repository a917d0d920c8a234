WScript.Echo VarType(Empty), VarType(Null), VarType(1), VarType(70000), VarType(CSng(1))
' expect: 0 1 2 3 4
WScript.Echo VarType(1.5), VarType(CCur(1)), VarType(CDate(1)), VarType("a"), VarType(Nothing)
' expect: 5 6 7 8 9
WScript.Echo VarType(True), VarType(CByte(1)), VarType(Array())
' expect: 11 17 8204
