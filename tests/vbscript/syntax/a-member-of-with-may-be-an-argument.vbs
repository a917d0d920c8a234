Class C
Public Name
End Class
Set o = New C
o.Name = "inner"
Sub Show(text)
  WScript.Echo text
End Sub
With o
  Show .Name
  WScript.Echo .Name & .Name
End With
' expect: inner
' expect: innerinner
