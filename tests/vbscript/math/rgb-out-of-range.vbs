Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("RGB(-1, 0, 0)")
' expect: 5
WScript.Echo ErrorOf("RGB(0, -1, 0)")
' expect: 5
WScript.Echo ErrorOf("RGB(0, 0, -1)")
' expect: 5
WScript.Echo ErrorOf("RGB(40000, 0, 0)")
' expect: 6
WScript.Echo ErrorOf("RGB(Null, 0, 0)")
' expect: 94
WScript.Echo ErrorOf("RGB(""x"", 0, 0)")
' expect: 13
WScript.Echo ErrorOf("RGB(1, 2)")
' expect: 450
WScript.Echo ErrorOf("RGB(1, 2, 3, 4)")
' expect: 450
