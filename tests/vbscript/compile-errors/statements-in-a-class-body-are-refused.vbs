Class C
  x = 1
End Class
' expect error: 1002 at 2:2
' expect text: Syntax error
