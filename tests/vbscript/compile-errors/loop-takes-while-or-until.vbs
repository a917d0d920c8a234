Do
Loop x
' expect error: 1028 at 2:5
' expect text: Expected 'While', 'Until' or end of statement
