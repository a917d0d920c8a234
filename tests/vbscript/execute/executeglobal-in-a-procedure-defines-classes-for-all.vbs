Sub Define()
  ExecuteGlobal "Class Box : Public N : End Class"
End Sub
Define
Set b = New Box
b.N = 2
WScript.Echo b.N
' expect: 2
