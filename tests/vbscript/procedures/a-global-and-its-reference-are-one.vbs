g = 1
Sub S(n)
  g = 10
  n = n + 1
  WScript.Echo g, n
End Sub
S g
' expect: 11 11
