While False
    x = 0 Wend
' expect error: 1025 at 2:10
' expect text: Expected end of statement
