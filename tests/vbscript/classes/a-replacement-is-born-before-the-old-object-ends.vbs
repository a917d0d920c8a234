Class Loud
  Public Name
  Private Sub Class_Initialize()
    WScript.Echo "born"
  End Sub
  Private Sub Class_Terminate()
    WScript.Echo "gone", Name
  End Sub
End Class

Set o = New Loud
o.Name = "first"
Set o = New Loud
o.Name = "second"
WScript.Echo "after"
Set o = Nothing
' expect: born
' expect: born
' expect: gone first
' expect: after
' expect: gone second
