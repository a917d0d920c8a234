Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("1 / 0")
' expect: 11
WScript.Echo ErrorOf("-1 / 0")
' expect: 11
WScript.Echo ErrorOf("1.5 / 0.0")
' expect: 11
WScript.Echo ErrorOf("1 / Empty")
' expect: 11
WScript.Echo ErrorOf("1 / False")
' expect: 11
WScript.Echo ErrorOf("1 / ""0""")
' expect: 11
WScript.Echo ErrorOf("0 / 0")
' expect: 6
WScript.Echo ErrorOf("0.0 / 0")
' expect: 6
WScript.Echo ErrorOf("Empty / Empty")
' expect: 6
WScript.Echo ErrorOf("1 \ 0")
' expect: 11
WScript.Echo ErrorOf("0 \ 0")
' expect: 11
WScript.Echo ErrorOf("1 Mod 0")
' expect: 11
WScript.Echo ErrorOf("0 Mod 0")
' expect: 11
WScript.Echo ErrorOf("1 \ 0.5")
' expect: 11
WScript.Echo ErrorOf("1 Mod 0.4")
' expect: 11
