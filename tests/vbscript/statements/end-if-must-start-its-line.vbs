If True Then
  y = 1 : End If
' expect error: 1042
' expect text: Must be first statement on the line
