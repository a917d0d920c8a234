Dim registered
Class Plugin
  Public Name
  Public Sub Register()
    Keep Me
  End Sub
End Class
Sub Keep(plugin)
  Set registered = plugin
End Sub

Set p = New Plugin
p.Name = "ruler"
p.Register
WScript.Echo registered.Name
' expect: ruler
