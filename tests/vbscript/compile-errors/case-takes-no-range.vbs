Select Case 1
  Case 1 To 2
End Select
' expect error: 1025 at 2:9
' expect text: Expected end of statement
