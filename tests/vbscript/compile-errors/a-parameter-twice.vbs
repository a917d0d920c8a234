Sub S(x, y, x)
End Sub
' expect error: 1041 at 1:12
' expect text: Name redefined
