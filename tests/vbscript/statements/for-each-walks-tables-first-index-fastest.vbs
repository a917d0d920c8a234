Dim t(1, 2)
For i = 0 To 1
  For j = 0 To 2
    t(i, j) = i & j
  Next
Next
For Each x In t
  s = s & x & " "
Next
WScript.Echo Trim(s)
' expect: 00 10 01 11 02 12
