Function Squares(n)
  Dim list(), i
  ReDim list(n - 1)
  For i = 1 To n
    list(i - 1) = i * i
  Next
  Squares = list
End Function
WScript.Echo Join(Squares(4))
' expect: 1 4 9 16
