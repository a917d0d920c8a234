Class C
  Public Sub S()
  End Sub
  Public Sub S()
  End Sub
End Class
' expect error: 1041
