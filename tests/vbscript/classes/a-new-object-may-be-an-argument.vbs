Class Box
  Public N
  Private Sub Class_Initialize()
    N = 7
  End Sub
End Class

Function Content(b)
  Content = b.N
End Function
WScript.Echo Content(New Box)
' expect: 7
