Sub S()
  Dim n
  n = n + 1
  WScript.Echo n
End Sub
S
S
' expect: 1
' expect: 1
