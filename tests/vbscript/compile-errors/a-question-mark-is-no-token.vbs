? 1
' expect error: 1032 at 1:0
' expect text: Invalid character
