If False Then
  Sub S()
    WScript.Echo "ran"
  End Sub
End If
S
' expect: ran
