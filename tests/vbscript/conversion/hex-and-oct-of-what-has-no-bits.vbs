Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Hex(""x"")")
' expect: 13
WScript.Echo ErrorOf("Hex("""")")
' expect: 13
WScript.Echo ErrorOf("Hex(2147483648)")
' expect: 6
WScript.Echo ErrorOf("Oct(1E10)")
' expect: 6
WScript.Echo ErrorOf("Hex(Array())")
' expect: 13
WScript.Echo ErrorOf("Oct(Nothing)")
' expect: 91
WScript.Echo ErrorOf("Hex()")
' expect: 450
WScript.Echo ErrorOf("Oct(1, 2)")
' expect: 450
