Dim t()
ReDim t(1, 1)
ReDim Preserve t(2, 1)
' expect error: 9 at 3:0
