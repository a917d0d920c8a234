' Objects in an array, as a script keeps the rows of a table: 30,000 invoices put in order of amount and customer.
Class Invoice
  Public Number
  Public Customer
  Public Amount
End Class

Function ComesBefore(a, b)
  If a.Amount <> b.Amount Then
    ComesBefore = a.Amount < b.Amount
  Else
    ComesBefore = a.Customer < b.Customer
  End If
End Function

Sub Sort(items, first, last)
  Dim i, j, pivot, held
  i = first
  j = last
  Set pivot = items((first + last) \ 2)
  Do While i <= j
    Do While ComesBefore(items(i), pivot)
      i = i + 1
    Loop
    Do While ComesBefore(pivot, items(j))
      j = j - 1
    Loop
    If i <= j Then
      Set held = items(i)
      Set items(i) = items(j)
      Set items(j) = held
      i = i + 1
      j = j - 1
    End If
  Loop
  If first < j Then Sort items, first, j
  If i < last Then Sort items, i, last
End Sub

Const COUNT = 30000
Dim invoices(29999), i, seed, made, hash
seed = 42
For i = 0 To COUNT - 1
  seed = (seed * 1103 + 12345) Mod 1000003
  Set made = New Invoice
  made.Number = i
  made.Customer = "customer " & (seed Mod 977)
  made.Amount = seed Mod 5000
  Set invoices(i) = made
Next
Sort invoices, 0, COUNT - 1
hash = 0
For i = 0 To COUNT - 1
  hash = (hash * 31 + invoices(i).Number) Mod 1000003
Next
WScript.Echo invoices(0).Amount & " " & invoices(COUNT - 1).Amount & " " & hash
