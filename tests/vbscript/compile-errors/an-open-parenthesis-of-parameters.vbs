Sub S(a, b
End Sub
' expect error: 1006 at 1:10
' expect text: Expected ')'
