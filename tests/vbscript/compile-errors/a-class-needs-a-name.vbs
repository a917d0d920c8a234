Class
End Class
' expect error: 1010 at 1:5
' expect text: Expected identifier
