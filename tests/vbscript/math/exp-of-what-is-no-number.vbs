Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Exp(Null)")
' expect: 94
WScript.Echo ErrorOf("Exp(""x"")")
' expect: 13
WScript.Echo ErrorOf("Exp("""")")
' expect: 13
WScript.Echo ErrorOf("Exp(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Exp(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Exp()")
' expect: 450
WScript.Echo ErrorOf("Exp(1, 2)")
' expect: 450
