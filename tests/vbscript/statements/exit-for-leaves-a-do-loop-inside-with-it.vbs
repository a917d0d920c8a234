For i = 1 To 5
  Do
    n = n + 1
    If n = 3 Then Exit For
    If n > 10 Then Exit Do
  Loop
Next
WScript.Echo n, i
' expect: 3 1
