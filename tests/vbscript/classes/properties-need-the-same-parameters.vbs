Class C
  Public Property Get P(a)
  End Property
  Public Property Let P(a, b, value)
  End Property
End Class
' expect error: 1051
' expect text: Number of arguments must be consistent across properties specification
