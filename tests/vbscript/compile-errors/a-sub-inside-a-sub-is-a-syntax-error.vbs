Sub Outer()
  Sub Inner()
  End Sub
End Sub
' expect error: 1002 at 2:2
' expect text: Syntax error
