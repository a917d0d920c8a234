x = 0
  Do While 1 / x
  Loop
' expect error: 11 at 2:2
