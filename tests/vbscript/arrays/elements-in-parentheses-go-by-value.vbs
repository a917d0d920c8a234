Sub Twice(n)
  n = n * 2
End Sub
Dim a(0)
a(0) = 21
Twice (a(0))
WScript.Echo a(0)
' expect: 21
