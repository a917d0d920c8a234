Do While a
Loop While b
' expect error: 1025 at 2:5
' expect text: Expected end of statement
