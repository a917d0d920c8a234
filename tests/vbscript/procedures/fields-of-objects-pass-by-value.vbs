Class Box
  Public N
End Class
Sub Increase(n)
  n = n + 1
End Sub
Set b = New Box
b.N = 5
Increase b.N
WScript.Echo b.N
' expect: 5
