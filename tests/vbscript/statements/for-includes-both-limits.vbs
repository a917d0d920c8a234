For i = 2 To 4
  WScript.Echo i
Next
' expect: 2
' expect: 3
' expect: 4
