x = 5
Erase x
' expect error: 13 at 2:0
