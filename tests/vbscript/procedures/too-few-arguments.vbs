Sub S(a, b)
End Sub
S 1
' expect error: 450 at 3:0
