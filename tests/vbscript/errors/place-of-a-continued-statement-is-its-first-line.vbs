x = 1
x = 1 + _
  2 + _
  3 / 0
' expect error: 11 at 2:0
