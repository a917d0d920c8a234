Class Node
  Public Tail
End Class
Dim head, n
Set head = Nothing
For i = 1 To 100000
  Set n = New Node
  Set n.Tail = head
  Set head = n
Next
Set n = Nothing
Set head = Nothing
WScript.Echo "released"
' expect: released
