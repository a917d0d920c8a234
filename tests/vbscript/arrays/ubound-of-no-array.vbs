x = 5
n = UBound(x)
' expect error: 13 at 2:0
