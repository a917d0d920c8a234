x = 5
Set y = x
' expect error: 424 at 2:0
