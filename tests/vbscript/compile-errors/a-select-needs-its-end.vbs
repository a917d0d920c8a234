Select Case 1
  Case 1
    x = 1
' expect error: 1014
' expect text: Expected 'End'
