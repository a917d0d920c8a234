Sub Outer()
  Class Inner
  End Class
End Sub
' expect error: 1002 at 2:2
' expect text: Syntax error
