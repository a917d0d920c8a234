For i = 1 To 2
  Sub Inner()
  End Sub
Next
' expect error: 1002 at 2:2
' expect text: Syntax error
