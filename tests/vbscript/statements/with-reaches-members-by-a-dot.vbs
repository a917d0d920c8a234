Class Point
  Public X, Y
  Public Function Sum()
    Sum = X + Y
  End Function
End Class

Set p = New Point
With p
  .X = 3
  .Y = .X + 1
  WScript.Echo .X, .Y, .Sum
End With
' expect: 3 4 7
