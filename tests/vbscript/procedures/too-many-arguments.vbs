Sub S(a)
End Sub
S 1, 2
' expect error: 450 at 3:0
