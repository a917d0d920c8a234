Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Atn(Null)")
' expect: 94
WScript.Echo ErrorOf("Atn(""x"")")
' expect: 13
WScript.Echo ErrorOf("Atn("""")")
' expect: 13
WScript.Echo ErrorOf("Atn(Array(1))")
' expect: 13
WScript.Echo ErrorOf("Atn(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Atn()")
' expect: 450
WScript.Echo ErrorOf("Atn(1, 2)")
' expect: 450
