Class Node
  Public Value, Tail
End Class

Dim head, n
Set head = Nothing
For i = 1 To 4
  Set n = New Node
  n.Value = i
  Set n.Tail = head
  Set head = n
Next
Set n = head
Do Until n Is Nothing
  s = s & n.Value
  Set n = n.Tail
Loop
WScript.Echo s
' expect: 4321
