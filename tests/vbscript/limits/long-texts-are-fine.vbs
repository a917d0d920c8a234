For i = 1 To 20000
  s = s & "0123456789"
Next
WScript.Echo Len(s), Mid(s, 199991)
' expect: 200000 0123456789
