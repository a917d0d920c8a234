Class Box
  Public N
End Class
Sub Fill(ByVal b)
  b.N = 9
End Sub
Set x = New Box
Fill x
WScript.Echo x.N
' expect: 9
