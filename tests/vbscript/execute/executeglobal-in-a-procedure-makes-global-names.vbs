Sub S()
  ExecuteGlobal "made = 5"
End Sub
Sub Show()
  WScript.Echo made
End Sub
S
Show
WScript.Echo made
' expect: 5
' expect: 5
