Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Asc("""")")
' expect: 5
WScript.Echo ErrorOf("AscW("""")")
' expect: 5
WScript.Echo ErrorOf("AscB("""")")
' expect: 5
WScript.Echo ErrorOf("Asc(Empty)")
' expect: 5
WScript.Echo ErrorOf("Asc(Null)")
' expect: 94
WScript.Echo ErrorOf("AscW(Null)")
' expect: 94
WScript.Echo ErrorOf("Asc(Array())")
' expect: 13
WScript.Echo ErrorOf("Asc(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Asc()")
' expect: 450
