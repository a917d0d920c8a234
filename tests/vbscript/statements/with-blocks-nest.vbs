Class Box
  Public Name, Inner
End Class

Set outside = New Box
outside.Name = "outer"
Set outside.Inner = New Box
With outside
  With .Inner
    .Name = "inner"
    WScript.Echo .Name
  End With
  WScript.Echo .Name
  WScript.Echo .Inner.Name
End With
' expect: inner
' expect: outer
' expect: inner
