x = “a”
' expect error: 1032 at 1:4
' expect text: Invalid character
