d = #1/2/2003
' expect error: 1002 at 1:4
' expect text: Syntax error
