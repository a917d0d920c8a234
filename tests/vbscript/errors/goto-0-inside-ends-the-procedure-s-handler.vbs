Sub S()
  On Error Resume Next
  x = 1 / 0
  WScript.Echo "first"
  On Error GoTo 0
  x = 1 / 0
  WScript.Echo "never"
End Sub
On Error Resume Next
S
WScript.Echo "caught", Err.Number
' expect: first
' expect: caught 11
