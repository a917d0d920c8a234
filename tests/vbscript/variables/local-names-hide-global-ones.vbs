x = "global"
Sub S()
  Dim x
  x = "local"
  WScript.Echo x
End Sub
S
WScript.Echo x
' expect: local
' expect: global
