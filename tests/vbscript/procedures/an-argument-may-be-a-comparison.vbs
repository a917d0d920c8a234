Sub S(a, b)
  WScript.Echo a, b
End Sub
x = 1
S x = 1, 2
S x = 2, 2
' expect: True 2
' expect: False 2
