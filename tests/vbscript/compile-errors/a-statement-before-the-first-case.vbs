Select Case 1
  x = 1
  Case 1
End Select
' expect error: 1021 at 2:2
' expect text: Expected 'Case'
