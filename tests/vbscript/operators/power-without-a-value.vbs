Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("(-8) ^ 0.5")
' expect: 5
WScript.Echo ErrorOf("0 ^ -1")
' expect: 5
WScript.Echo ErrorOf("10 ^ 309")
' expect: 6
WScript.Echo ErrorOf("(-10) ^ 309")
' expect: 6
WScript.Echo ErrorOf("10 ^ -400")
' expect: 0
WScript.Echo ErrorOf("""a"" ^ 2")
' expect: 13
