Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Sin(Null)")
' expect: 94
WScript.Echo ErrorOf("Sin(""x"")")
' expect: 13
WScript.Echo ErrorOf("Sin("""")")
' expect: 13
WScript.Echo ErrorOf("Sin(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Sin(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Sin()")
' expect: 450
WScript.Echo ErrorOf("Sin(1, 2)")
' expect: 450
