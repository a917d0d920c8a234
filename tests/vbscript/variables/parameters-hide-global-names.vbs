x = "global"
Sub S(x)
  WScript.Echo x
End Sub
S "argument"
WScript.Echo x
' expect: argument
' expect: global
