Class Loud
  Public Name
  Private Sub Class_Terminate()
    WScript.Echo "gone", Name
  End Sub
End Class

Dim a()
ReDim a(1)
Set a(0) = New Loud
a(0).Name = "first"
Set a(1) = New Loud
a(1).Name = "second"
ReDim Preserve a(0)
WScript.Echo "shrunk"
ReDim a(0)
WScript.Echo "cleared"
' expect: gone second
' expect: shrunk
' expect: gone first
' expect: cleared
