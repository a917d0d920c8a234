Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CCur(Null)")
' expect: 94
WScript.Echo ErrorOf("CCur(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CCur(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CCur()")
' expect: 450
WScript.Echo ErrorOf("CCur(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CCur("""")")
' expect: 13
WScript.Echo ErrorOf("CCur(""abc"")")
' expect: 13
