Option Explicit
Dim g
Sub S()
  g = g + 1
End Sub
S
S
WScript.Echo g
' expect: 2
