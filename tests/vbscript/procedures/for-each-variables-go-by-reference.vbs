Sub Increase(n)
  n = n + 1
End Sub
For Each x In Array(1, 2)
  Increase x
  WScript.Echo x
Next
' expect: 2
' expect: 3
