Class Box
  Public Content
End Class

Set a = New Box
Set b = New Box
a.Content = 1
b.Content = 2
WScript.Echo a.Content, b.Content
' expect: 1 2
