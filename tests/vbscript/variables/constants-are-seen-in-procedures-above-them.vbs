Sub S()
  WScript.Echo c
End Sub
Const c = 4
S
' expect: 4
