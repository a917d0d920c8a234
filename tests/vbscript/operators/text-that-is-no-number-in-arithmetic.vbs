Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("""a"" + 1")
' expect: 13
WScript.Echo ErrorOf("1 + """"")
' expect: 13
WScript.Echo ErrorOf("""a"" - 1")
' expect: 13
WScript.Echo ErrorOf("""a"" - ""b""")
' expect: 13
WScript.Echo ErrorOf("""a"" * 2")
' expect: 13
WScript.Echo ErrorOf("1 / ""a""")
' expect: 13
WScript.Echo ErrorOf("""a"" \ 1")
' expect: 13
WScript.Echo ErrorOf("""a"" Mod 1")
' expect: 13
WScript.Echo ErrorOf("""a"" ^ 1")
' expect: 13
WScript.Echo ErrorOf("-""a""")
' expect: 13
WScript.Echo ErrorOf("""True"" + 1")
' expect: 13
WScript.Echo ErrorOf("""1/1/2000"" + 1")
' expect: 13
