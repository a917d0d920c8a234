For i = 1 To 2
    x = 0 Next
' expect error: 1025 at 2:10
' expect text: Expected end of statement
