Const limit = 5
Sub S()
  On Error Resume Next
  limit = 6
  WScript.Echo Err.Number, limit
End Sub
S
' expect: 501 5
