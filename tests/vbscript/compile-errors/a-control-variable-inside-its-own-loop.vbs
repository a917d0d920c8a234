For i = 1 To 2
  For Each I In a
  Next
Next
' expect error: 1040 at 2:11
' expect text: Invalid 'for' loop control variable
