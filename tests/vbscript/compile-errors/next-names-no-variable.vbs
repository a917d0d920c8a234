For i = 1 To 2
Next i
' expect error: 1025 at 2:5
' expect text: Expected end of statement
