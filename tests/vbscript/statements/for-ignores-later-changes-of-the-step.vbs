gap = 1
For i = 1 To 4 Step gap
  gap = 100
  n = n + 1
Next
WScript.Echo n
' expect: 4
