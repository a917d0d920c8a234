Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CInt(2.5))
' expect: Integer 2
WScript.Echo Show(CInt(3.5))
' expect: Integer 4
WScript.Echo Show(CInt(-2.5))
' expect: Integer -2
WScript.Echo Show(CInt("12.6"))
' expect: Integer 13
WScript.Echo Show(CInt(True))
' expect: Integer -1
WScript.Echo Show(CInt(Empty))
' expect: Integer 0
WScript.Echo Show(CInt(32767.4))
' expect: Integer 32767
WScript.Echo Show(CInt("&HFFFF"))
' expect: Integer -1
WScript.Echo Show(CInt(CCur("1.5")))
' expect: Integer 2
WScript.Echo Show(CInt(#1900-01-01#))
' expect: Integer 2
