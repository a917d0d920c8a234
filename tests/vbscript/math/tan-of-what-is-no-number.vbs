Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Tan(Null)")
' expect: 94
WScript.Echo ErrorOf("Tan(""x"")")
' expect: 13
WScript.Echo ErrorOf("Tan("""")")
' expect: 13
WScript.Echo ErrorOf("Tan(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Tan(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Tan()")
' expect: 450
WScript.Echo ErrorOf("Tan(1, 2)")
' expect: 450
