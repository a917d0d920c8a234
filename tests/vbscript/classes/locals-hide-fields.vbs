Class Thing
  Public N
  Public Sub Work()
    Dim n
    n = 99
    WScript.Echo n, Me.N
  End Sub
End Class

Set t = New Thing
t.N = 1
t.Work
' expect: 99 1
