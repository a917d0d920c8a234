Function F()
  Exit Sub
End Function
' expect error: 1039
