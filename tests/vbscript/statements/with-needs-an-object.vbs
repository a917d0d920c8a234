n = 5
With n
End With
' expect error: 424 at 2:0
