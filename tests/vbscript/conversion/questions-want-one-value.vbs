Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("IsArray()")
' expect: 450
WScript.Echo ErrorOf("IsDate()")
' expect: 450
WScript.Echo ErrorOf("IsEmpty()")
' expect: 450
WScript.Echo ErrorOf("IsNull()")
' expect: 450
WScript.Echo ErrorOf("IsNumeric()")
' expect: 450
WScript.Echo ErrorOf("IsObject()")
' expect: 450
WScript.Echo ErrorOf("TypeName()")
' expect: 450
WScript.Echo ErrorOf("VarType()")
' expect: 450
WScript.Echo ErrorOf("IsArray(1, 2)")
' expect: 450
WScript.Echo ErrorOf("IsNull(1, 2)")
' expect: 450
WScript.Echo ErrorOf("TypeName(1, 2)")
' expect: 450
WScript.Echo ErrorOf("VarType(1, 2)")
' expect: 450
