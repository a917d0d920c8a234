Class Loud
  Private Sub Class_Initialize()
    WScript.Echo "born"
  End Sub
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

Dim o
WScript.Echo "before"
Set o = New Loud
WScript.Echo "between"
Set o = Nothing
WScript.Echo "after"
' expect: before
' expect: born
' expect: between
' expect: gone
' expect: after
