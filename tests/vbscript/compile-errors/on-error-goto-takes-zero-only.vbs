On Error GoTo Failed
' expect error: 1002 at 1:14
' expect text: Syntax error
