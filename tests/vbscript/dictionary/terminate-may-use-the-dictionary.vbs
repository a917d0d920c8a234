' expect: 0
Dim d
Set d = CreateObject("Scripting.Dictionary")
Class C
  Private Sub Class_Terminate()
    d("ended") = d.Count
  End Sub
End Class
Set d("o") = New C
d.Remove "o"
WScript.Echo d("ended")
