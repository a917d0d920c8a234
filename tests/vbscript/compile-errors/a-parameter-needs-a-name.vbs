Sub S(a, 5)
End Sub
' expect error: 1010 at 1:9
' expect text: Expected identifier
