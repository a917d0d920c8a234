Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Round(1.5, -1)")
' expect: 5
WScript.Echo ErrorOf("Round(1.5, 22)")
' expect: 0
WScript.Echo ErrorOf("Round(1.5, 23)")
' expect: 5
WScript.Echo ErrorOf("Round(""x"")")
' expect: 13
WScript.Echo ErrorOf("Round(1.5, ""x"")")
' expect: 13
WScript.Echo ErrorOf("Round(1.5, Null)")
' expect: 94
WScript.Echo ErrorOf("Round()")
' expect: 450
WScript.Echo ErrorOf("Round(1, 2, 3)")
' expect: 450
WScript.Echo ErrorOf("Round(Nothing)")
' expect: 91
