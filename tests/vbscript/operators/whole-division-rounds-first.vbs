Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(7 \ 2)
' expect: Integer 3
WScript.Echo Show(-7 \ 2)
' expect: Integer -3
WScript.Echo Show(7.5 \ 2)
' expect: Long 4
WScript.Echo Show(6.5 \ 2)
' expect: Long 3
WScript.Echo Show(7 \ 2.5)
' expect: Long 3
WScript.Echo Show(7 \ 3.5)
' expect: Long 1
WScript.Echo Show("7.5" \ "2")
' expect: Long 4
WScript.Echo Show(CByte(7) \ CByte(2))
' expect: Byte 3
WScript.Echo Show(True \ 1)
' expect: Integer -1
WScript.Echo Show(CCur("7.5") \ 2)
' expect: Long 4
WScript.Echo Show(CSng(7) \ 2)
' expect: Long 3
