Class Careful
  Public State
  Private Sub Class_Initialize()
    On Error Resume Next
    State = "started"
    State = 1 / 0
    State = State & ", went on"
  End Sub
End Class

Set o = New Careful
WScript.Echo o.State
' expect: started, went on
