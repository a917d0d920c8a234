Select Case 3
  Case Is > 2
End Select
' expect error: 1002 at 2:7
' expect text: Syntax error
