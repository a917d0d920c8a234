x = 1 +
' expect error: 1002 at 1:7
' expect text: Syntax error
