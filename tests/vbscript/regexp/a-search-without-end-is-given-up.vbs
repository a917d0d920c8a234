Set re = New RegExp
re.Pattern = "(a+)+$"
re.Test String(40, "a") & "b"
' expect error: 17 at 3:0
' expect text: Can't perform requested operation
