If False Then x = 1 Else x = 1 / 0
' expect error: 11 at 1:25
