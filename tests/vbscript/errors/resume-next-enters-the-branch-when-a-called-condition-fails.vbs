Function Fails()
  Fails = False
  Err.Raise 1000
End Function
On Error Resume Next
If Fails() Then
  WScript.Echo "branch"
Else
  WScript.Echo "else"
End If
' expect: branch
