Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("1E308 * 10")
' expect: 6
WScript.Echo ErrorOf("1E308 + 1E308")
' expect: 6
WScript.Echo ErrorOf("-1E308 - 1E308")
' expect: 6
WScript.Echo ErrorOf("1E308 / 0.01")
' expect: 6
WScript.Echo ErrorOf("1E-308 / 1E10")
' expect: 0
