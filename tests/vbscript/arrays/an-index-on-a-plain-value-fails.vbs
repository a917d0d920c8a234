x = 5
y = x(0)
' expect error: 13 at 2:0
