Sub S(n)
  WScript.Echo "called"
End Sub
On Error Resume Next
S 1 / 0
WScript.Echo Err.Number
' expect: 11
