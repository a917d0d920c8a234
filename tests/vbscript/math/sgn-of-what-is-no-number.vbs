Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Sgn(Null)")
' expect: 94
WScript.Echo ErrorOf("Sgn(""x"")")
' expect: 13
WScript.Echo ErrorOf("Sgn("""")")
' expect: 13
WScript.Echo ErrorOf("Sgn(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Sgn(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Sgn()")
' expect: 450
WScript.Echo ErrorOf("Sgn(1, 2)")
' expect: 450
