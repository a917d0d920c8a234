Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CInt(Null)")
' expect: 94
WScript.Echo ErrorOf("CInt(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CInt(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CInt()")
' expect: 450
WScript.Echo ErrorOf("CInt(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CInt("""")")
' expect: 13
WScript.Echo ErrorOf("CInt(""abc"")")
' expect: 13
