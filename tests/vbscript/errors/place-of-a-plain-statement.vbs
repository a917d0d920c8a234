x = 1
  x = CInt("abc")
' expect error: 13 at 2:2
