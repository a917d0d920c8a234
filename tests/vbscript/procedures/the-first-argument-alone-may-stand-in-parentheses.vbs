Sub S(a, b)
  a = a + 1
  b = b + 1
End Sub
x = 1
y = 1
S (x), y
WScript.Echo x, y
' expect: 1 2
S(x), y
WScript.Echo x, y
' expect: 1 3
