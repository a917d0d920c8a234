x = 1
End If
' expect error: 1024 at 2:0
' expect text: Expected statement
