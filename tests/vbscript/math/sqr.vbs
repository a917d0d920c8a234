Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Sqr(16))
' expect: Double 4
WScript.Echo Show(Sqr(2))
' expect: Double 1.4142135623731
WScript.Echo Show(Sqr(0))
' expect: Double 0
WScript.Echo Show(Sqr("6.25"))
' expect: Double 2.5
WScript.Echo Show(Sqr(Empty))
' expect: Double 0
WScript.Echo Show(Sqr(CCur(9)))
' expect: Double 3
