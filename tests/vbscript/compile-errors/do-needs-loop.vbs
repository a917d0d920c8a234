Do
  b = 1
' expect error: 1019
' expect text: Expected 'Loop'
