Class C
  Default Function x()
  End Function
End Class
' expect error: 1057 at 2:2
' expect text: 'Default' specification must also specify 'Public'
