If True Then
  Sub S()
    Exit For
  End Sub
End If
' expect error: 1039 at 3:9
' expect text: Invalid 'exit' statement
