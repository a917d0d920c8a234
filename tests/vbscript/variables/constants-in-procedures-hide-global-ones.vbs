Const c = 1
Sub S()
  Const c = 2
  WScript.Echo c
End Sub
S
WScript.Echo c
' expect: 2
' expect: 1
