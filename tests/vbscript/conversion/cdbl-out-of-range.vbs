Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CDbl(""1E309"")")
' expect: 6
WScript.Echo ErrorOf("CDbl(""-1E309"")")
' expect: 6
WScript.Echo ErrorOf("CDbl(""1E-400"")")
' expect: 0
