Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Array(1) + 1")
' expect: 13
WScript.Echo ErrorOf("1 - Array(1)")
' expect: 13
WScript.Echo ErrorOf("Array() & """"")
' expect: 13
WScript.Echo ErrorOf("Array() = Array()")
' expect: 13
WScript.Echo ErrorOf("Not Array()")
' expect: 13
WScript.Echo ErrorOf("-Array()")
' expect: 13
WScript.Echo ErrorOf("Array() And True")
' expect: 13
WScript.Echo ErrorOf("Array(1) + Null")
' expect: 13
