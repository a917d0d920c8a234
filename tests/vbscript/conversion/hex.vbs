Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Hex(255))
' expect: String FF
WScript.Echo Show(Hex(0))
' expect: String 0
WScript.Echo Show(Hex(-1))
' expect: String FFFF
WScript.Echo Show(Hex(CLng(-1)))
' expect: String FFFFFFFF
WScript.Echo Show(Hex(-1.0))
' expect: String FFFFFFFF
WScript.Echo Show(Hex(True))
' expect: String FFFF
WScript.Echo Show(Hex(CByte(16)))
' expect: String 10
WScript.Echo Show(Hex(Empty))
' expect: String 0
WScript.Echo Show(Hex("255"))
' expect: String FF
WScript.Echo Show(Hex(10.5))
' expect: String A
WScript.Echo Show(Hex(11.5))
' expect: String C
WScript.Echo Show(Hex(2147483647))
' expect: String 7FFFFFFF
WScript.Echo Show(Hex(CCur(255)))
' expect: String FF
