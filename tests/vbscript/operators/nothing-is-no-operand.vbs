Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Nothing + 1")
' expect: 91
WScript.Echo ErrorOf("1 & Nothing")
' expect: 91
WScript.Echo ErrorOf("Nothing = 1")
' expect: 91
WScript.Echo ErrorOf("-Nothing")
' expect: 91
WScript.Echo ErrorOf("Not Nothing")
' expect: 91
WScript.Echo ErrorOf("Nothing And True")
' expect: 91
WScript.Echo ErrorOf("Nothing Is Nothing")
' expect: 0
