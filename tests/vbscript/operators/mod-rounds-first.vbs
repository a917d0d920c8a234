Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(7 Mod 3)
' expect: Integer 1
WScript.Echo Show(-7 Mod 3)
' expect: Integer -1
WScript.Echo Show(7 Mod -3)
' expect: Integer 1
WScript.Echo Show(5.5 Mod 2)
' expect: Long 0
WScript.Echo Show(6.5 Mod 4)
' expect: Long 2
WScript.Echo Show(12.6 Mod 5)
' expect: Long 3
WScript.Echo Show(CByte(7) Mod CByte(4))
' expect: Byte 3
WScript.Echo Show(10 Mod "4")
' expect: Long 2
WScript.Echo Show(0 Mod 5)
' expect: Integer 0
