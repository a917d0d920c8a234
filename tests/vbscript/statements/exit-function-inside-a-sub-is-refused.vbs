Sub S()
  Exit Function
End Sub
' expect error: 1039
