Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Sgn(-2.5))
' expect: Integer -1
WScript.Echo Show(Sgn(0))
' expect: Integer 0
WScript.Echo Show(Sgn(1E300))
' expect: Integer 1
WScript.Echo Show(Sgn(Empty))
' expect: Integer 0
WScript.Echo Show(Sgn(True))
' expect: Integer -1
WScript.Echo Show(Sgn("-3"))
' expect: Integer -1
WScript.Echo Show(Sgn(CCur("0.0001")))
' expect: Integer 1
