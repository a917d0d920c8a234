Dim ended
ended = 0
Class Node
  Public Other
  Private Sub Class_Terminate()
    ended = ended + 1
  End Sub
End Class

Set a = New Node
Set b = New Node
Set a.Other = b
Set b.Other = a
Set a.Other = Nothing
Set b = Nothing
WScript.Echo ended
' expect: 1
Set a = Nothing
WScript.Echo ended
' expect: 2
