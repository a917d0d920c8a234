Sub Fails()
  WScript.Echo "before"
  x = 1 / 0
  WScript.Echo "never"
End Sub
On Error Resume Next
Fails
WScript.Echo "after the call", Err.Number
' expect: before
' expect: after the call 11
