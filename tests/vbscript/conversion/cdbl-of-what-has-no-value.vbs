Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CDbl(Null)")
' expect: 94
WScript.Echo ErrorOf("CDbl(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CDbl(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CDbl()")
' expect: 450
WScript.Echo ErrorOf("CDbl(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CDbl("""")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""abc"")")
' expect: 13
