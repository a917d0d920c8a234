Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Atn(1) * 4)
' expect: Double 3.14159265358979
WScript.Echo Show(Atn(0))
' expect: Double 0
WScript.Echo Show(Atn(-1))
' expect: Double -0.785398163397448
WScript.Echo Show(Atn(1E300))
' expect: Double 1.5707963267949
WScript.Echo Show(Atn("1"))
' expect: Double 0.785398163397448
