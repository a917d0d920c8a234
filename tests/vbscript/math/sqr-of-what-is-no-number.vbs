Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Sqr(Null)")
' expect: 94
WScript.Echo ErrorOf("Sqr(""x"")")
' expect: 13
WScript.Echo ErrorOf("Sqr("""")")
' expect: 13
WScript.Echo ErrorOf("Sqr(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Sqr(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Sqr()")
' expect: 450
WScript.Echo ErrorOf("Sqr(1, 2)")
' expect: 450
