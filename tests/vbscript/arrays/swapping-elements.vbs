a = Array(3, 1, 2)
For i = 0 To 1
  For j = i + 1 To 2
    If a(j) < a(i) Then
      t = a(i)
      a(i) = a(j)
      a(j) = t
    End If
  Next
Next
WScript.Echo Join(a)
' expect: 1 2 3
