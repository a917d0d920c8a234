x = f(1,)
' expect error: 1002 at 1:8
' expect text: Syntax error
