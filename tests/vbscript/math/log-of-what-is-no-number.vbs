Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Log(Null)")
' expect: 94
WScript.Echo ErrorOf("Log(""x"")")
' expect: 13
WScript.Echo ErrorOf("Log("""")")
' expect: 13
WScript.Echo ErrorOf("Log(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Log(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Log()")
' expect: 450
WScript.Echo ErrorOf("Log(1, 2)")
' expect: 450
