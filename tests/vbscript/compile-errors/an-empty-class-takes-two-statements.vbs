Class C End Class
' expect error: 1025 at 1:8
' expect text: Expected end of statement
