Sub Careful()
  On Error Resume Next
End Sub
Careful
x = 1 / 0
' expect error: 11 at 5:0
' expect text: Division by zero
