x = "no end""
' expect error: 1033 at 1:4
' expect text: Unterminated string constant
