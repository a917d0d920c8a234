Function F()
  Dim f
End Function
' expect error: 1041 at 2:6
' expect text: Name redefined
