Sub S()
  For i = 1 To 3
End Sub
' expect error: 1020 at 3:0
' expect text: Expected 'Next'
