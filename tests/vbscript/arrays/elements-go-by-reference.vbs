Sub Twice(n)
  n = n * 2
End Sub
Dim a(2)
a(1) = 21
Twice a(1)
WScript.Echo a(1)
' expect: 42
i = 1
Twice a(i)
WScript.Echo a(1)
' expect: 84
