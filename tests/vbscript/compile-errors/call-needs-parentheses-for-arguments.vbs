Call f 1
' expect error: 1025 at 1:7
' expect text: Expected end of statement
