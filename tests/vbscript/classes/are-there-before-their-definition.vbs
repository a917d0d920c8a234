Set b = New Box
b.Content = 3
WScript.Echo b.Content
' expect: 3
Class Box
  Public Content
End Class
