Class Loud
  Public Name
  Private Sub Class_Terminate()
    WScript.Echo "gone", Name
  End Sub
End Class

Dim a(0)
Set a(0) = New Loud
a(0).Name = "a"
Erase a
WScript.Echo "after"
' expect: gone a
' expect: after
