While False
    x = 0 End While
' expect error: 1025 at 2:10
' expect text: Expected end of statement
