Class Loud
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

Sub S()
  Dim o
  Set o = New Loud
  WScript.Echo "in"
End Sub
S
WScript.Echo "after"
' expect: in
' expect: gone
' expect: after
