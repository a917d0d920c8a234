Class Loud
  Private Sub Class_Terminate()
    WScript.Echo "gone"
  End Sub
End Class

Function Make()
  Dim o
  Set o = New Loud
  Set Make = o
End Function
Set kept = Make()
WScript.Echo "kept"
Set kept = Nothing
' expect: kept
' expect: gone
