Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(-(CByte(5)))
' expect: Integer -5
WScript.Echo Show(-(CInt(-32768)))
' expect: Long 32768
WScript.Echo Show(-(CLng("-2147483648")))
' expect: Double 2147483648
WScript.Echo Show(-(True))
' expect: Integer 1
WScript.Echo Show(-(Empty))
' expect: Integer 0
WScript.Echo Show(-("5"))
' expect: Double -5
WScript.Echo Show(-(CCur("1.5")))
' expect: Currency -1.5
WScript.Echo Show(-(CSng(1.5)))
' expect: Single -1.5
WScript.Echo Show(-(0))
' expect: Integer 0
