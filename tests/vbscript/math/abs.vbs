Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Abs(-5))
' expect: Integer 5
WScript.Echo Show(Abs(5))
' expect: Integer 5
WScript.Echo Show(Abs(-1.5))
' expect: Double 1.5
WScript.Echo Show(Abs(CInt(-32768)))
' expect: Long 32768
WScript.Echo Show(Abs(CLng("-2147483648")))
' expect: Double 2147483648
WScript.Echo Show(Abs(CByte(5)))
' expect: Byte 5
WScript.Echo Show(Abs(True))
' expect: Integer 1
WScript.Echo Show(Abs(False))
' expect: Integer 0
WScript.Echo Show(Abs(Empty))
' expect: Integer 0
WScript.Echo Show(Abs("-5"))
' expect: Double 5
WScript.Echo Show(Abs("5"))
' expect: Double 5
WScript.Echo Show(Abs(CCur("-1.5")))
' expect: Currency 1.5
WScript.Echo Show(Abs(CSng(-1.5)))
' expect: Single 1.5
WScript.Echo Show(Abs(CDate(-2)))
' expect: Date 1/1/1900
