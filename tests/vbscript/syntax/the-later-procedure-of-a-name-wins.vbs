Sub S()
  WScript.Echo "first"
End Sub
S
Sub S()
  WScript.Echo "second"
End Sub
' expect: second
