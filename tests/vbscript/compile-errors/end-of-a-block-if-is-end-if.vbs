Sub S()
  If a Then
    b = 1
End Sub
' expect error: 1012 at 4:4
' expect text: Expected 'If'
