x = 5
y = x Is Nothing
' expect error: 424 at 2:0
