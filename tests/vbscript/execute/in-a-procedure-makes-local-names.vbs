Sub S()
  Execute "made = 5"
  WScript.Echo Eval("made")
End Sub
Sub Show()
  WScript.Echo TypeName(made)
End Sub
S
Show
' expect: 5
' expect: Empty
