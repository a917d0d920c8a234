Sub S()
  Dim x
  Dim x
End Sub
' expect error: 1041 at 3:6
' expect text: Name redefined
