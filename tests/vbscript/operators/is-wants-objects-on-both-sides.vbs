Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("1 Is Nothing")
' expect: 424
WScript.Echo ErrorOf("Nothing Is Empty")
' expect: 424
WScript.Echo ErrorOf("""a"" Is ""a""")
' expect: 424
WScript.Echo ErrorOf("Null Is Nothing")
' expect: 424
