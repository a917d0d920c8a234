Dim a()
ReDim a(2)
For Each x In a
Next
ReDim a(5)
WScript.Echo UBound(a)
' expect: 5
For Each x In a
  Exit For
Next
ReDim a(7)
WScript.Echo UBound(a)
' expect: 7
