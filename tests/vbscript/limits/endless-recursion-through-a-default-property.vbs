Class Loop1
  Public Default Property Get Value()
    Value = Me & ""
  End Property
End Class
Set l = New Loop1
On Error Resume Next
x = l & ""
WScript.Echo Err.Number
' expect: 28
