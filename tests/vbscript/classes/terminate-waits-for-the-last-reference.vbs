Class Loud
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

Set a = New Loud
Set b = a
Set a = Nothing
WScript.Echo "still there"
Set b = Nothing
WScript.Echo "after"
' expect: still there
' expect: gone
' expect: after
