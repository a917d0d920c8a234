Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CByte(Null)")
' expect: 94
WScript.Echo ErrorOf("CByte(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CByte(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CByte()")
' expect: 450
WScript.Echo ErrorOf("CByte(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CByte("""")")
' expect: 13
WScript.Echo ErrorOf("CByte(""abc"")")
' expect: 13
