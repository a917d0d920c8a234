Public Default Sub x()
End Sub
' expect error: 1048 at 1:7
' expect text: Must be defined inside a Class
