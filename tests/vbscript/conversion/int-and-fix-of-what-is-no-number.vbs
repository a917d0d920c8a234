Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Int(""x"")")
' expect: 13
WScript.Echo ErrorOf("Fix("""")")
' expect: 13
WScript.Echo ErrorOf("Int(Array())")
' expect: 13
WScript.Echo ErrorOf("Fix(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Int()")
' expect: 450
WScript.Echo ErrorOf("Fix(1, 2)")
' expect: 450
