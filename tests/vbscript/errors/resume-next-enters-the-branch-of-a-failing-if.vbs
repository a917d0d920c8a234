On Error Resume Next
If 1 / 0 = 1 Then
  WScript.Echo "branch", Err.Number
Else
  WScript.Echo "else"
End If
' expect: branch 11
