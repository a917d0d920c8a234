Dim x = 1
' expect error: 1025 at 1:6
' expect text: Expected end of statement
