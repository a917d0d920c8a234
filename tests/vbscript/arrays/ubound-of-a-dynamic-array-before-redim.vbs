Dim a()
n = UBound(a)
' expect error: 9 at 2:0
