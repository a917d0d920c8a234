Sub S(a(3))
End Sub
' expect error: 1006 at 1:8
' expect text: Expected ')'
