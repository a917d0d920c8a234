Sub S
  WScript.Echo "ran"
End Sub
Function F
  F = 5
End Function
S
WScript.Echo F, F()
' expect: ran
' expect: 5 5
