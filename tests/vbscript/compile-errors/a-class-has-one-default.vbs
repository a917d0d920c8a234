Class C
  Public Default Sub x()
  End Sub
  Public Default Sub y()
  End Sub
End Class
' expect error: 1052 at 4:9
' expect text: Cannot have multiple default property/method in a Class
