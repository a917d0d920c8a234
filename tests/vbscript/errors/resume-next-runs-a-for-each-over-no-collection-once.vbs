On Error Resume Next
For Each x In Empty
  n = n + 1
Next
WScript.Echo n, Err.Number
' expect: 1 451
