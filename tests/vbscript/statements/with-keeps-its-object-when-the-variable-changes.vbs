Class Box
  Public Name
End Class

Set b = New Box
b.Name = "first"
With b
  Set b = New Box
  b.Name = "second"
  WScript.Echo .Name
End With
' expect: first
WScript.Echo b.Name
' expect: second
