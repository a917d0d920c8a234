Class C
  Property x()
  End Property
End Class
' expect error: 1049 at 2:11
' expect text: Expected Let or Set or Get in property declaration
