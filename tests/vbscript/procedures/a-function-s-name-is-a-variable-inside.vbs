Function Sum(n)
  Dim i
  Sum = 0
  For i = 1 To n
    Sum = Sum + i
  Next
End Function
WScript.Echo Sum(4)
' expect: 10
