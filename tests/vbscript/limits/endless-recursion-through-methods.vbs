Class Mirror
  Public Function Look()
    Look = Me.Look()
  End Function
End Class
Set m = New Mirror
On Error Resume Next
x = m.Look()
WScript.Echo Err.Number
' expect: 28
