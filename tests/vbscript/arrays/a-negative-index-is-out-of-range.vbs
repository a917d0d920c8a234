Dim a(2)
i = -1
x = a(i)
' expect error: 9 at 3:0
