If True Then x = 1 / 0
' expect error: 11 at 1:13
