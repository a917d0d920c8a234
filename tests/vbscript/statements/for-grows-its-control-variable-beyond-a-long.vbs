For i = 2147483646 To 2147483647
  n = n + 1
Next
WScript.Echo n, i, TypeName(i)
' expect: 2 2147483648 Double
