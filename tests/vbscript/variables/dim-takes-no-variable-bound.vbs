n = 3
Dim a(n)
' expect error: 1026
' expect text: Expected integer constant
