Dim a()
a(0) = 1
' expect error: 9 at 2:0
