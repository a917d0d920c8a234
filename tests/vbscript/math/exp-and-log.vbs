Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Exp(0))
' expect: Double 1
WScript.Echo Show(Exp(1))
' expect: Double 2.71828182845905
WScript.Echo Show(Exp(-1000))
' expect: Double 0
WScript.Echo Show(Log(1))
' expect: Double 0
WScript.Echo Show(Log(Exp(2)))
' expect: Double 2
WScript.Echo Show(Log("10"))
' expect: Double 2.30258509299405
WScript.Echo Show(Log(1E-300) < 0)
' expect: Boolean True
