Option Explicit
For i = 1 To 3
Next
' expect error: 500 at 2:0
