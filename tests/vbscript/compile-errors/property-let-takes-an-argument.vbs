Class C
  Property Let x()
  End Property
End Class
' expect error: 1054 at 2:15
' expect text: Property set or let must have at least one argument
