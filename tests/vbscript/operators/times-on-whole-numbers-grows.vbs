Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CByte(16) * CByte(16))
' expect: Integer 256
WScript.Echo Show(CByte(255) * CByte(255))
' expect: Long 65025
WScript.Echo Show(181 * 181)
' expect: Integer 32761
WScript.Echo Show(182 * 182)
' expect: Long 33124
WScript.Echo Show(65536 * 32768)
' expect: Double 2147483648
WScript.Echo Show(65536 * 32767)
' expect: Long 2147418112
