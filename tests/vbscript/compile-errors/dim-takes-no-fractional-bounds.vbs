Dim a(1.5)
' expect error: 1026 at 1:6
' expect text: Expected integer constant
