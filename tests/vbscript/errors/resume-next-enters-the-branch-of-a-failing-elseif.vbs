On Error Resume Next
If False Then
  WScript.Echo "first"
ElseIf 1 / 0 = 1 Then
  WScript.Echo "second", Err.Number
ElseIf True Then
  WScript.Echo "third"
Else
  WScript.Echo "else"
End If
' expect: second 11
