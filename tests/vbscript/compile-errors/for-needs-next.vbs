For i = 1 To 3
  b = 1
' expect error: 1020
' expect text: Expected 'Next'
