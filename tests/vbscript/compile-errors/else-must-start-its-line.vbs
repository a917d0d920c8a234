If a Then
  x = 1 : Else
  x = 2
End If
' expect error: 1042 at 2:10
' expect text: Must be first statement on the line
