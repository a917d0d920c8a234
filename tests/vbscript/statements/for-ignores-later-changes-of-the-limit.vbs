last = 3
For i = 1 To last
  last = 10
  n = n + 1
Next
WScript.Echo n
' expect: 3
