Class Box
  Public Content
End Class

Set upper = New Box
Set lower = New Box
For Each b In Array(upper, lower)
  n = n + 1
  b.Content = n
Next
WScript.Echo upper.Content, lower.Content
' expect: 1 2
