Select Case 1
  Case Else
    x = 1
  Case 1
End Select
' expect error: 1014 at 4:2
' expect text: Expected 'End'
