For i = 1, 3
Next
' expect error: 1013 at 1:9
' expect text: Expected 'To'
