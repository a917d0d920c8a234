Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CCur("1.5") * 2)
' expect: Currency 3
WScript.Echo Show(CCur("1.5") * 2.5)
' expect: Double 3.75
WScript.Echo Show(CCur("1.5") * CCur("1.5"))
' expect: Currency 2.25
WScript.Echo Show(CCur("0.0001") * CCur("0.5"))
' expect: Currency 0
WScript.Echo Show(CCur("0.0003") * CCur("0.5"))
' expect: Currency 0.0002
WScript.Echo Show(CCur(3) / 2)
' expect: Double 1.5
