' expect error: 5 at 4
' expect text: Invalid procedure call or argument: 'Mid'
x = 1
y = Mid("abc", 0)
