Option Explicit
If False Then missing = 1
Sub Never()
  other = 2
End Sub
WScript.Echo "fine"
' expect: fine
