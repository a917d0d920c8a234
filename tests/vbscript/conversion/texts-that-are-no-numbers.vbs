Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("CDbl("""")")
' expect: 13
WScript.Echo ErrorOf("CDbl("" "")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""."")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""-"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""abc"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""12abc"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""1 2"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""1.2.3"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""1e"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""1e+"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""--1"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""+-1"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""((1))"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""(-1)"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""(1"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""1)"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""$"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""&H"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""&HG"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""&O8"")")
' expect: 13
WScript.Echo ErrorOf("CDbl("",1"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""True"")")
' expect: 13
WScript.Echo ErrorOf("CDbl(""1/2"")")
' expect: 13
