Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CInt(32768)")
' expect: 6
WScript.Echo ErrorOf("CInt(-32769)")
' expect: 6
WScript.Echo ErrorOf("CInt(32767.5)")
' expect: 6
WScript.Echo ErrorOf("CInt(-32768.5)")
' expect: 0
WScript.Echo ErrorOf("CInt(""40000"")")
' expect: 6
WScript.Echo ErrorOf("CInt(#2000-01-01#)")
' expect: 6
WScript.Echo ErrorOf("CInt(""&H10000"")")
' expect: 6
