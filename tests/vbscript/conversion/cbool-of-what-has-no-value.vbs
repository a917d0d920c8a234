Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CBool(Null)")
' expect: 94
WScript.Echo ErrorOf("CBool(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CBool(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CBool()")
' expect: 450
WScript.Echo ErrorOf("CBool(1, 2)")
' expect: 450
WScript.Echo ErrorOf("CBool("""")")
' expect: 13
WScript.Echo ErrorOf("CBool(""abc"")")
' expect: 13
