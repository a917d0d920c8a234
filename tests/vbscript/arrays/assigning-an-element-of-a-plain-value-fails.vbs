x = 5
x(0) = 1
' expect error: 13 at 2:0
