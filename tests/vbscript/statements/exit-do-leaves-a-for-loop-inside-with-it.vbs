Do
  n = n + 1
  For i = 1 To 5
    If n = 2 And i = 3 Then Exit Do
  Next
Loop
WScript.Echo n, i
' expect: 2 3
