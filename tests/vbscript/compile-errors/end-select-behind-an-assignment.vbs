Select Case 1
  Case 1
    x = 0 End Select
' expect error: 1025 at 3:10
' expect text: Expected end of statement
