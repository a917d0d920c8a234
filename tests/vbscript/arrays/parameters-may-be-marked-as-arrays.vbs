Function Sum(list())
  For Each x In list
    Sum = Sum + x
  Next
End Function
WScript.Echo Sum(Array(1, 2, 3))
' expect: 6
