Sub S()
  ReDim list(1)
  list(1) = "b"
  WScript.Echo UBound(list), list(1)
End Sub
S
' expect: 1 b
