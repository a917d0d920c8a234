a = Array(1, 2, 3)
For Each x In a
  x = x * 10
Next
WScript.Echo Join(a)
' expect: 1 2 3
