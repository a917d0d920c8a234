Class Loud
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

Sub S()
  Dim o
  Set o = New Loud
  WScript.Echo 1 / 0
End Sub
On Error Resume Next
S
WScript.Echo "after"
' expect: gone
' expect: after
