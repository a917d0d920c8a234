Sub S()
  Dim x
  If True Then
    Dim x
  End If
End Sub
' expect error: 1041
