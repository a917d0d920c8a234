x = Nothing
' expect error: 91 at 1:0
