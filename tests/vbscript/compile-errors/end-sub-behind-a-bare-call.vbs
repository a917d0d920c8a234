Sub S()
  Foo End Sub
' expect error: 1025 at 2:6
' expect text: Expected end of statement
