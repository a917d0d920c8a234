If a Then
  y = 1 : End If
' expect error: 1042 at 2:10
' expect text: Must be first statement on the line
