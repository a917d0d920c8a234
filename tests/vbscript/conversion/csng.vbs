Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CSng(0.1))
' expect: Single 0.1
WScript.Echo Show(CSng(1/3))
' expect: Single 0.3333333
WScript.Echo Show(CSng("1E10"))
' expect: Single 1E+10
WScript.Echo Show(CSng(True))
' expect: Single -1
WScript.Echo Show(CSng(Empty))
' expect: Single 0
WScript.Echo Show(CSng(1E-50))
' expect: Single 0
WScript.Echo Show(CSng(16777217))
' expect: Single 1.677722E+07
