Class Box
  Public N
End Class
Sub Renew(b)
  Set b = New Box
  b.N = 2
End Sub
Set x = New Box
x.N = 1
Renew x
WScript.Echo x.N
' expect: 2
