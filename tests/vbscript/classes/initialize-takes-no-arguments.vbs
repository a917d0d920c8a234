Class C
  Private Sub Class_Initialize(a)
  End Sub
End Class
' expect error: 1053
' expect text: Class initialize or terminate do not have arguments
