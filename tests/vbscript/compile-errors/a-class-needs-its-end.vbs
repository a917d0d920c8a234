Class C
  Public x
' expect error: 1014
' expect text: Expected 'End'
