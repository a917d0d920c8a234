Sub Again()
  Again
End Sub
On Error Resume Next
Again
WScript.Echo Err.Number, Err.Description
' expect: 28 Out of stack space
