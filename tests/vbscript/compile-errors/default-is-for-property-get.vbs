Class C
  Public Default Property Let x(a)
  End Property
End Class
' expect error: 1058 at 2:26
' expect text: 'Default' specification can only be on Property Get
