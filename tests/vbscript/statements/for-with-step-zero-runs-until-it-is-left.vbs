For i = 1 To 1 Step 0
  n = n + 1
  If n = 50 Then Exit For
Next
WScript.Echo n, i
' expect: 50 1
