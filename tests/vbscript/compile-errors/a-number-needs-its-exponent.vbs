x = 1e
' expect error: 1031 at 1:4
' expect text: Invalid number
