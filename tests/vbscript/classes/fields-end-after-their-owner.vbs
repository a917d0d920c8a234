Class Loud
  Public Name, Inner
  Private Sub Class_Terminate()
    WScript.Echo "gone", Name
  End Sub
End Class

Set o = New Loud
o.Name = "outer"
Set o.Inner = New Loud
o.Inner.Name = "inner"
Set o = Nothing
' expect: gone outer
' expect: gone inner
