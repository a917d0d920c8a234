' Arguments by reference, the usual kind: variables, elements of an array, and references handed on. The peers, which
' have no such arguments, return the values.
Sub Swap(a, b)
  Dim held
  held = a
  a = b
  b = held
End Sub

Sub Rotate(a, b, c)
  Swap a, b
  Swap b, c
End Sub

Sub Shuffle(items, turns, first, second)
  Dim i
  For i = 1 To turns
    Swap items(i Mod 16), items((i * 7) Mod 16)
    Rotate first, items(i Mod 13), second
  Next
End Sub

Dim items(15), i, first, second, hash
For i = 0 To 15
  items(i) = i
Next
first = 100
second = 200
Shuffle items, 400000, first, second
hash = first * 31 + second
For i = 0 To 15
  hash = (hash * 31 + items(i)) Mod 1000003
Next
WScript.Echo hash
