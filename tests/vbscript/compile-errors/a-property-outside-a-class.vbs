Property Get x()
End Property
' expect error: 1048 at 1:0
' expect text: Must be defined inside a Class
