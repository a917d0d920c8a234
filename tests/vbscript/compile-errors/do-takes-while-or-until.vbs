Do x
Loop
' expect error: 1028 at 1:3
' expect text: Expected 'While', 'Until' or end of statement
