Sub Both(a, b)
  a = 1
  b = b + 1
  WScript.Echo a, b
End Sub
x = 5
Both x, x
WScript.Echo x
' expect: 2 2
' expect: 2
