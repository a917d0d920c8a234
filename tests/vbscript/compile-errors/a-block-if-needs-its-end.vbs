If a Then
  x = 1
' expect error: 1014
' expect text: Expected 'End'
