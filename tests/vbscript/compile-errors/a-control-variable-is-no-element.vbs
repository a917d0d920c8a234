For a(0) = 1 To 2
Next
' expect error: 1040 at 1:4
' expect text: Invalid 'for' loop control variable
