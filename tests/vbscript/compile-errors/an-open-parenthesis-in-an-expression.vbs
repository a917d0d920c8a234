x = (1 + 2
' expect error: 1006 at 1:10
' expect text: Expected ')'
