Option Explicit
Sub S()
  Dim a
  a = 1
  b = 2
End Sub
S
' expect error: 500 at 5:2
