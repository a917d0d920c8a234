Select Case 1
  x = 2
  Case 1
End Select
' expect error: 1021
' expect text: Expected 'Case'
