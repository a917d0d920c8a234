For i 1 To 3
Next
' expect error: 1011 at 1:6
' expect text: Expected '='
