While a
  b = 1
' expect error: 1018
' expect text: Expected 'Wend'
