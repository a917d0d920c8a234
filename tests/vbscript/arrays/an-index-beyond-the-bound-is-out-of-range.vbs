Dim a(2)
x = 1
a(3) = x
' expect error: 9 at 3:0
