Class Changer
  Public Sub Increase(n)
    n = n + 1
  End Sub
  Public Sub Keep(ByVal n)
    n = n + 1
  End Sub
End Class

Set c = New Changer
x = 5
c.Increase x
WScript.Echo x
' expect: 6
c.Keep x
WScript.Echo x
' expect: 6
