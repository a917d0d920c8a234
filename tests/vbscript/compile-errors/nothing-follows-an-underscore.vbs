x = 1 + _ ' one
  2
' expect error: 1032 at 1:8
' expect text: Invalid character
