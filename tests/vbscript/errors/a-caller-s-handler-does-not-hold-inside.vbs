Sub S()
  x = 1 / 0
  WScript.Echo "never"
End Sub
On Error Resume Next
S
WScript.Echo "caught"
' expect: caught
