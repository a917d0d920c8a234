Sub Twice(n)
  n = n * 2
End Sub
Dim t(1, 1)
t(1, 0) = 4
Twice t(1, 0)
WScript.Echo t(1, 0)
' expect: 8
