n = 3
Dim a(n)
' expect error: 1026 at 2:6
' expect text: Expected integer constant
