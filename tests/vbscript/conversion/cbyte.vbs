Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CByte(0))
' expect: Byte 0
WScript.Echo Show(CByte(255.4))
' expect: Byte 255
WScript.Echo Show(CByte("12"))
' expect: Byte 12
WScript.Echo Show(CByte(True))
' expect: Byte 255
WScript.Echo Show(CByte(Empty))
' expect: Byte 0
WScript.Echo Show(CByte(2.5))
' expect: Byte 2
WScript.Echo Show(CByte("&HFF"))
' expect: Byte 255
