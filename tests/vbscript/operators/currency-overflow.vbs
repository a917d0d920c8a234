Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CCur(""922337203685477"") + CCur(""922337203685477"")")
' expect: 6
WScript.Echo ErrorOf("-CCur(""-922337203685477.5808"")")
' expect: 6
WScript.Echo ErrorOf("CCur(1000000) * CCur(""1000000000000"")")
' expect: 6
WScript.Echo ErrorOf("CCur(1) + 1E20")
' expect: 6
