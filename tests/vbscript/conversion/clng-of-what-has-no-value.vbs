Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CLng(Null)")
' expect: 94
WScript.Echo ErrorOf("CLng(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CLng(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CLng()")
' expect: 450
WScript.Echo ErrorOf("CLng(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CLng("""")")
' expect: 13
WScript.Echo ErrorOf("CLng(""abc"")")
' expect: 13
