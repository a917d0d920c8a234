For i = 1 To 2
  For j = 1 To 9
    If j = 2 Then Exit For
    WScript.Echo i, j
  Next
Next
' expect: 1 1
' expect: 2 1
