Set re = New RegExp
re.Test Null
' expect error: 94 at 2:0
' expect text: Invalid use of Null
