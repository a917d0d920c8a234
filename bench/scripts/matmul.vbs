' Arrays of two dimensions: the product of two matrices of 300 by 300.
Dim size, i, j, k, sum, total
size = 300
Dim a(299, 299), b(299, 299), c(299, 299)
For i = 0 To size - 1
  For j = 0 To size - 1
    a(i, j) = (i * 3 + j) Mod 17
    b(i, j) = (i + j * 5) Mod 13
  Next
Next
For i = 0 To size - 1
  For j = 0 To size - 1
    sum = 0
    For k = 0 To size - 1
      sum = sum + a(i, k) * b(k, j)
    Next
    c(i, j) = sum
  Next
Next
total = 0
For i = 0 To size - 1
  For j = 0 To size - 1
    total = (total + c(i, j)) Mod 1000003
  Next
Next
WScript.Echo total
