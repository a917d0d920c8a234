On Error Resume Next
With 5
  WScript.Echo "body"
  Err.Clear
  .Name = 1
  WScript.Echo Err.Number
End With
' expect: body
' expect: 424
