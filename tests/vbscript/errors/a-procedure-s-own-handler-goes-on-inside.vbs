Sub Careful()
  On Error Resume Next
  x = 1 / 0
  WScript.Echo "inside", Err.Number
End Sub
Careful
WScript.Echo "after"
' expect: inside 11
' expect: after
