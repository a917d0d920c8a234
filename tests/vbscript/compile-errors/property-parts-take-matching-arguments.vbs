Class C
  Property Get x(a)
  End Property
  Property Let x(a)
  End Property
End Class
' expect error: 1051 at 4:15
' expect text: Number of arguments must be consistent across properties specification
