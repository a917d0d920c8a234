Sub Inner(n)
  n = n * 10
End Sub
Sub Outer(m)
  Inner m
  m = m + 1
End Sub
x = 5
Outer x
WScript.Echo x
' expect: 51
