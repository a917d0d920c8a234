Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CDate(Null)")
' expect: 94
WScript.Echo ErrorOf("CDate(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CDate(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CDate()")
' expect: 450
WScript.Echo ErrorOf("CDate(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CDate("""")")
' expect: 13
WScript.Echo ErrorOf("CDate(""abc"")")
' expect: 13
