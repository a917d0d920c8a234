Sub S()
  Public x
End Sub
' expect error: 1002 at 2:2
' expect text: Syntax error
