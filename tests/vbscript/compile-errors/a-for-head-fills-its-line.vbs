For i = 1 To 2 x = 1
Next
' expect error: 1025 at 1:15
' expect text: Expected end of statement
