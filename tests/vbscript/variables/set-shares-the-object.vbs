Class Box
  Public Content
End Class

Set a = New Box
Set b = a
b.Content = 5
WScript.Echo a.Content, a Is b
' expect: 5 True
