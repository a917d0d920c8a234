Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CStr(Null)")
' expect: 94
WScript.Echo ErrorOf("CStr(Array(1))")
' expect: 13
WScript.Echo ErrorOf("CStr(Nothing)")
' expect: 91
WScript.Echo ErrorOf("CStr()")
' expect: 450
WScript.Echo ErrorOf("CStr(1, 2)")
' expect: 450
