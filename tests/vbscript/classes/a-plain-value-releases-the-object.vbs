Class Loud
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

Set o = New Loud
o = 5
WScript.Echo "after", o
' expect: gone
' expect: after 5
