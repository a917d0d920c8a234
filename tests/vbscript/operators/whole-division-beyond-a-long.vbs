Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("3000000000 \ 1")
' expect: 6
WScript.Echo ErrorOf("1 \ 3000000000")
' expect: 6
WScript.Echo ErrorOf("3000000000 Mod 7")
' expect: 6
WScript.Echo ErrorOf("1 Mod 3000000000")
' expect: 6
WScript.Echo ErrorOf("CLng(""-2147483648"") \ -1")
' expect: 6
WScript.Echo ErrorOf("CLng(""-2147483648"") Mod -1")
' expect: 0
WScript.Echo ErrorOf("CInt(-32768) \ -1")
' expect: 0
