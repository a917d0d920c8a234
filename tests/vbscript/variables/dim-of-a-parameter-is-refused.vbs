Sub S(x)
  Dim x
End Sub
' expect error: 1041
