x = "global"
Sub S()
  Dim x
  x = "local"
  Execute "x = x & "" changed"""
  WScript.Echo x
End Sub
S
WScript.Echo x
' expect: local changed
' expect: global
