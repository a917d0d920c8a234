Class Safe
  Private Sub Hidden()
  End Sub
  Public Sub Open()
    Hidden
    WScript.Echo "open"
  End Sub
End Class

Set s = New Safe
s.Open
' expect: open
s.Hidden
' expect error: 438 at 13:0
