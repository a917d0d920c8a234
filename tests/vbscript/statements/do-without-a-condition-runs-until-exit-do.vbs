Do
  n = n + 1
  If n = 7 Then Exit Do
Loop
WScript.Echo n
' expect: 7
