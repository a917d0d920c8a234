If 0 > 1 Then
    x = 0 End If
' expect error: 1025 at 2:10
' expect text: Expected end of statement
