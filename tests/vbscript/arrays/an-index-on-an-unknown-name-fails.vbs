y = unknown(0)
' expect error: 13 at 1:0
