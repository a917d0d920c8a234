Class Box
  Public N
End Class
Sub Renew(ByVal b)
  b.N = 5
  Set b = New Box
  b.N = 2
End Sub
Set x = New Box
x.N = 1
Renew x
WScript.Echo x.N
' expect: 5
