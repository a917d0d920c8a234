Sub S(x)
  Dim x
End Sub
' expect error: 1041 at 2:6
' expect text: Name redefined
