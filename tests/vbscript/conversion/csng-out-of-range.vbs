Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CSng(1E39)")
' expect: 6
WScript.Echo ErrorOf("CSng(""-1E39"")")
' expect: 6
WScript.Echo ErrorOf("CSng(3.4E38)")
' expect: 0
WScript.Echo ErrorOf("CSng(1E-60)")
' expect: 0
