Class C
  Public Property Let P()
  End Property
End Class
' expect error: 1054
