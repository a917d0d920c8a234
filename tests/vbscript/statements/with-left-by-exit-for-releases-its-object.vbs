Class Loud
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

For i = 1 To 3
  With New Loud
    If i = 2 Then Exit For
  End With
Next
WScript.Echo "after", i
' expect: gone
' expect: gone
' expect: after 2
