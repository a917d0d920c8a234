n = 5
For Each x In n
Next
' expect error: 451 at 2:0
