x = "global"
Sub S()
  Dim x
  x = "local"
  ExecuteGlobal "x = x & "" changed"""
  WScript.Echo x
End Sub
S
WScript.Echo x
' expect: local
' expect: global changed
