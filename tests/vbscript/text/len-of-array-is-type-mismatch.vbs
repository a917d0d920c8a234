' expect error: 13 at 3
' expect text: Type mismatch: 'Len'
x = Len(Array(1))
