Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CSng(Null)")
' expect: 94
WScript.Echo ErrorOf("CSng(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CSng(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CSng()")
' expect: 450
WScript.Echo ErrorOf("CSng(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CSng("""")")
' expect: 13
WScript.Echo ErrorOf("CSng(""abc"")")
' expect: 13
