For i = 1 To 6
  WScript.Echo i
  i = i + 1
Next
' expect: 1
' expect: 3
' expect: 5
