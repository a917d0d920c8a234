Dim a()
ReDim a(2)
For Each x In a
  ReDim a(5)
Next
' expect error: 10 at 4:2
