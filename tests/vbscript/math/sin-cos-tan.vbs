Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Sin(0))
' expect: Double 0
WScript.Echo Show(Cos(0))
' expect: Double 1
WScript.Echo Show(Tan(0))
' expect: Double 0
WScript.Echo Show(Sin(1))
' expect: Double 0.841470984807897
WScript.Echo Show(Cos(1))
' expect: Double 0.54030230586814
WScript.Echo Show(Tan(1))
' expect: Double 1.5574077246549
WScript.Echo Show(Sin(Empty))
' expect: Double 0
WScript.Echo Show(Cos(True))
' expect: Double 0.54030230586814
