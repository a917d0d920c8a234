MsgBox Null
' expect error: 94 at 1:0
