Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CDbl("1.5"))
' expect: Double 1.5
WScript.Echo Show(CDbl(True))
' expect: Double -1
WScript.Echo Show(CDbl(Empty))
' expect: Double 0
WScript.Echo Show(CDbl("1E-3"))
' expect: Double 0.001
WScript.Echo Show(CDbl("1D3"))
' expect: Double 1000
WScript.Echo Show(CDbl(#2000-01-01 12:00#))
' expect: Double 36526.5
WScript.Echo Show(CDbl(CSng(0.5)))
' expect: Double 0.5
WScript.Echo Show(CDbl("&HFF"))
' expect: Double 255
