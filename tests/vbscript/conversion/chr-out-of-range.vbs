Function ErrorOf(expression)
  On Error Resume Next
  Eval expression
  ErrorOf = Err.Number
End Function

WScript.Echo ErrorOf("Chr(256)")
' expect: 5
WScript.Echo ErrorOf("Chr(-1)")
' expect: 5
WScript.Echo ErrorOf("Chr(255.4)")
' expect: 0
WScript.Echo ErrorOf("Chr(1E10)")
' expect: 6
WScript.Echo ErrorOf("Chr(Null)")
' expect: 94
WScript.Echo ErrorOf("Chr(""a"")")
' expect: 13
WScript.Echo ErrorOf("ChrB(256)")
' expect: 5
WScript.Echo ErrorOf("ChrW(65536)")
' expect: 5
WScript.Echo ErrorOf("ChrW(-32769)")
' expect: 5
WScript.Echo ErrorOf("ChrW(-32768)")
' expect: 0
WScript.Echo ErrorOf("ChrW(65535)")
' expect: 0
WScript.Echo ErrorOf("Chr()")
' expect: 450
