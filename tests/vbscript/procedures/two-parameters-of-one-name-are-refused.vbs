Sub S(a, A)
End Sub
' expect error: 1041
