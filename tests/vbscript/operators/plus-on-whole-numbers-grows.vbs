Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(1 + 2)
' expect: Integer 3
WScript.Echo Show(32767 + 1)
' expect: Long 32768
WScript.Echo Show(-32767 - 2)
' expect: Long -32769
WScript.Echo Show(2147483647 + 1)
' expect: Double 2147483648
WScript.Echo Show(CByte(200) + CByte(55))
' expect: Byte 255
WScript.Echo Show(CByte(200) + CByte(56))
' expect: Integer 256
WScript.Echo Show(CByte(1) + 1)
' expect: Integer 2
WScript.Echo Show(1 + CLng(1))
' expect: Long 2
