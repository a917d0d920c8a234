Function Again(n)
  Again = 1 + Again(n + 1)
End Function
x = Again(0)
' expect error: 28
