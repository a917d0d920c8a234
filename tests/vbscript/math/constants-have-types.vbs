WScript.Echo TypeName(vbOK), TypeName(vbRed), TypeName(vbObjectError), TypeName(vbCrLf), TypeName(vbTrue), TypeName(vbMsgBoxRight)
' expect: Integer Long Long String Integer Long
WScript.Echo vbObjectError, vbTrue, vbFalse, vbUseDefault, vbArray + vbVariant = VarType(Array())
' expect: -2147221504 -1 0 -2 True
