For i = 1 To 2
  If a Then
    x = 1
Next
' expect error: 1055 at 4:0
' expect text: Unexpected 'Next'
