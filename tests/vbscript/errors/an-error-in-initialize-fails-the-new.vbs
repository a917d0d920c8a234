Class Broken
  Private Sub Class_Initialize()
    WScript.Echo "begins"
    Err.Raise 1000, "Broken", "cannot begin"
  End Sub
End Class

On Error Resume Next
Set o = New Broken
WScript.Echo TypeName(o), Err.Number, Err.Description
' expect: begins
' expect: Empty 1000 cannot begin
