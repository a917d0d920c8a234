x = 1
' expect error: 1032 at 1:1
' expect text: Invalid character
