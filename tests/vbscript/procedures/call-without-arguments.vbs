Sub S()
  WScript.Echo "ran"
End Sub
S
Call S
Call S()
S()
' expect: ran
' expect: ran
' expect: ran
' expect: ran
