Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CLng(2147483648)")
' expect: 6
WScript.Echo ErrorOf("CLng(2147483647.5)")
' expect: 6
WScript.Echo ErrorOf("CLng(-2147483649)")
' expect: 6
WScript.Echo ErrorOf("CLng(""3000000000"")")
' expect: 6
WScript.Echo ErrorOf("CLng(""&H1FFFFFFFF"")")
' expect: 6
WScript.Echo ErrorOf("CLng(CCur(3000000000))")
' expect: 6
