Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CByte(256)")
' expect: 6
WScript.Echo ErrorOf("CByte(-1)")
' expect: 6
WScript.Echo ErrorOf("CByte(255.5)")
' expect: 6
WScript.Echo ErrorOf("CByte(-0.5)")
' expect: 0
WScript.Echo ErrorOf("CByte(""300"")")
' expect: 6
WScript.Echo ErrorOf("CByte(1E300)")
' expect: 6
