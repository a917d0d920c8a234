Class Point
  Public X, Y
End Class
Class Line
  Public Start, Finish
  Private Sub Class_Initialize()
    Set Start = New Point
    Set Finish = New Point
  End Sub
End Class

Set l = New Line
l.Start.X = 1
l.Finish.Y = l.Start.X + 8
WScript.Echo l.Start.X, l.Finish.Y
' expect: 1 9
