Class C
  Property Get x()
  End Function
End Class
' expect error: 1050 at 3:6
' expect text: Expected 'Property'
