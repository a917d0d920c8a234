Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CDate(2958466)")
' expect: 6
WScript.Echo ErrorOf("CDate(2958465.9)")
' expect: 0
WScript.Echo ErrorOf("CDate(-657435)")
' expect: 6
WScript.Echo ErrorOf("CDate(-657434)")
' expect: 0
WScript.Echo ErrorOf("CDate(1E300)")
' expect: 6
