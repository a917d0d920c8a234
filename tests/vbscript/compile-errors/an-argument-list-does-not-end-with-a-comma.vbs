MsgBox "a",
' expect error: 1002 at 1:11
' expect text: Syntax error
