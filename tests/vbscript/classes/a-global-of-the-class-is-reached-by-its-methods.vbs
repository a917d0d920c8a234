Class Counter
  Public Sub Increase()
    instances = instances + 1
  End Sub
End Class
Dim instances
instances = 5
Set c = New Counter
c.Increase
WScript.Echo instances
' expect: 6
