Dim depth
Sub Again()
  depth = depth + 1
  Again
End Sub
On Error Resume Next
Again
first = depth
depth = 0
Err.Clear
Again
WScript.Echo Err.Number, depth = first, depth > 500
' expect: 28 True True
