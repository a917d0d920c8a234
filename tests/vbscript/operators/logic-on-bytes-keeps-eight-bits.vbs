Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CByte(6) Eqv CByte(3))
' expect: Byte 250
WScript.Echo Show(CByte(6) Imp CByte(3))
' expect: Byte 251
WScript.Echo Show(CByte(255) Xor CByte(15))
' expect: Byte 240
