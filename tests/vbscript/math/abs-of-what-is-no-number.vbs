Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Abs(""x"")")
' expect: 13
WScript.Echo ErrorOf("Abs("""")")
' expect: 13
WScript.Echo ErrorOf("Abs(Array())")
' expect: 13
WScript.Echo ErrorOf("Abs(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Abs()")
' expect: 450
WScript.Echo ErrorOf("Abs(1, 2)")
' expect: 450
WScript.Echo ErrorOf("Abs(CCur(""-922337203685477.5808""))")
' expect: 6
