Class Box
  Dim Content
End Class

Set b = New Box
b.Content = 5
WScript.Echo b.Content
' expect: 5
