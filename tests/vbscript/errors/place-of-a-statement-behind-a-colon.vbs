x = 1 : y = 2 : z = 1 / 0 : w = 3
' expect error: 11 at 1:16
