Class Node
  Public [Next]
  Public Function [Select](n)
    [Select] = n * 2
  End Function
  Public Sub [End]()
    WScript.Echo "end"
  End Sub
End Class

Set n = New Node
n.Next = 5
n.End
WScript.Echo n.Next, n.Select(4)
' expect: end
' expect: 5 8
