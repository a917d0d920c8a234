Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CSng(2) ^ 127)
' expect: Double 1.70141183460469E+38
WScript.Echo Show(CSng("3E38") + CSng("3E38") > 5E38)
' expect: Boolean True
WScript.Echo Show(TypeName(CSng("3E38") + CSng("3E38")))
' expect: String Double
WScript.Echo Show(TypeName(CSng("3E38") * CSng(10)))
' expect: String Double
