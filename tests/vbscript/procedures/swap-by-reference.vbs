Sub Swap(a, b)
  Dim t
  t = a
  a = b
  b = t
End Sub
x = 1
y = "two"
Swap x, y
WScript.Echo x, y
' expect: two 1
list = Array("first", "second")
Swap list(0), list(1)
WScript.Echo Join(list)
' expect: second first
