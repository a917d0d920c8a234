Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Sqr(-1)")
' expect: 5
WScript.Echo ErrorOf("Sqr(True)")
' expect: 5
WScript.Echo ErrorOf("Log(0)")
' expect: 5
WScript.Echo ErrorOf("Log(-1)")
' expect: 5
WScript.Echo ErrorOf("Log(Empty)")
' expect: 5
WScript.Echo ErrorOf("Exp(710)")
' expect: 6
WScript.Echo ErrorOf("Exp(709)")
' expect: 0
