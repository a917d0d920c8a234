Class C
  Public Default Property Let P(value)
  End Property
End Class
' expect error: 1058
