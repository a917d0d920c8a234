Dim 5
' expect error: 1010 at 1:4
' expect text: Expected identifier
