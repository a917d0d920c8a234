Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("""abc"" And 1")
' expect: 13
WScript.Echo ErrorOf("1 Or """"")
' expect: 13
WScript.Echo ErrorOf("Not ""abc""")
' expect: 13
WScript.Echo ErrorOf("3000000000 And 1")
' expect: 6
WScript.Echo ErrorOf("Not 1E10")
' expect: 6
