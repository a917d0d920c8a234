Sub SetIt()
  hidden = 5
  WScript.Echo hidden
End Sub
Sub Show()
  WScript.Echo TypeName(hidden)
End Sub
SetIt
Show
' expect: 5
' expect: Empty
