Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CByte(3) - CByte(2))
' expect: Byte 1
WScript.Echo Show(CByte(2) - CByte(3))
' expect: Integer -1
WScript.Echo Show(CInt(-32768) - 1)
' expect: Long -32769
WScript.Echo Show(CLng("-2147483648") - 1)
' expect: Double -2147483649
WScript.Echo Show(5 - 7)
' expect: Integer -2
