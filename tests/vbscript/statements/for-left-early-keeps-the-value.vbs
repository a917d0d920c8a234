For i = 1 To 10
  If i * i > 30 Then Exit For
Next
WScript.Echo i
' expect: 6
