If Then x = 1
' expect error: 1002 at 1:3
' expect text: Syntax error
