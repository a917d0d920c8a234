x = Unknown(1, 2)
' expect error: 13 at 1:0
