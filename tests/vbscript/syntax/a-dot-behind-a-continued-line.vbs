Class C
Public Name
End Class
Set o = New C
o.Name = "far"
x = o _
  .Name
WScript.Echo x
' expect: far
