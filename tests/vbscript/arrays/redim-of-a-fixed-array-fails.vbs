Dim a(2)
ReDim a(5)
' expect error: 10 at 2:0
