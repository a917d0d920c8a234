Do
    x = 0 Loop
' expect error: 1025 at 2:10
' expect text: Expected end of statement
