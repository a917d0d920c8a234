Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Int(1.7))
' expect: Double 1
WScript.Echo Show(Int(-1.2))
' expect: Double -2
WScript.Echo Show(Int(5))
' expect: Integer 5
WScript.Echo Show(Int(CLng(5)))
' expect: Long 5
WScript.Echo Show(Int(CSng(-1.5)))
' expect: Single -2
WScript.Echo Show(Int("2.7"))
' expect: Double 2
WScript.Echo Show(Int("-2.1"))
' expect: Double -3
WScript.Echo Show(Int(CCur("-1.5")))
' expect: Currency -2
WScript.Echo Show(Int(#2000-01-01 18:00#))
' expect: Date 1/1/2000
WScript.Echo Show(Int(True))
' expect: Integer -1
WScript.Echo Show(Int(Empty))
' expect: Integer 0
WScript.Echo Show(Int(CByte(3)))
' expect: Byte 3
