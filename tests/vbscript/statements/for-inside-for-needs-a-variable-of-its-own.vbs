For i = 1 To 2
  For i = 1 To 2
  Next
Next
' expect error: 1040
' expect text: Invalid 'for' loop control variable
