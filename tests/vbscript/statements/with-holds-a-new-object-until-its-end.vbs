Class Loud
  Public Name
  Private Sub Class_Terminate()
    WScript.Echo "gone", Name
  End Sub
End Class

With New Loud
  .Name = "bell"
  WScript.Echo "has", .Name
End With
WScript.Echo "after"
' expect: has bell
' expect: gone bell
' expect: after
