Dim a(3)
i = "two"
a(i) = 7
' expect error: 13 at 3:0
