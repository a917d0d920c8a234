x = "global"
Sub S(p)
  Dim x
  x = "local"
  WScript.Echo Eval("x & p")
End Sub
S 1
' expect: local1
