Function F(f)
  f = f + 1
  WScript.Echo f
End Function
F 1
' expect: 2
