Class C
  Property Get x()
  End Property
  Property Get x()
  End Property
End Class
' expect error: 1041 at 4:15
' expect text: Name redefined
