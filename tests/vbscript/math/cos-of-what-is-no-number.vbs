Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Cos(Null)")
' expect: 94
WScript.Echo ErrorOf("Cos(""x"")")
' expect: 13
WScript.Echo ErrorOf("Cos("""")")
' expect: 13
WScript.Echo ErrorOf("Cos(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Cos(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Cos()")
' expect: 450
WScript.Echo ErrorOf("Cos(1, 2)")
' expect: 450
