Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Rnd(""x"")")
' expect: 13
WScript.Echo ErrorOf("Rnd(Null)")
' expect: 94
WScript.Echo ErrorOf("Rnd(1E39)")
' expect: 6
WScript.Echo ErrorOf("Rnd(Array())")
' expect: 13
WScript.Echo ErrorOf("Rnd(1, 2)")
' expect: 450
