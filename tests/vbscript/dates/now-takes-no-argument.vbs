x = Now(1)
' expect error: 450
