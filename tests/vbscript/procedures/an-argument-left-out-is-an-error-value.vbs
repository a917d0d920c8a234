Sub S(a, b, c)
  WScript.Echo a, TypeName(b), VarType(b), c
End Sub
S 1, , 3
' expect: 1 Error 10 3
