For i = 1 To "many"
Next
' expect error: 13 at 1:0
