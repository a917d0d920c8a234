Class Loud
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

Set d = CreateObject("Scripting.Dictionary")
d.Add "a", New Loud
WScript.Echo "added"
d.Remove "a"
WScript.Echo "removed"
' expect: added
' expect: gone
' expect: removed
