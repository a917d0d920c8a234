Sub S(n)
  WScript.Echo "in"
  If n = 1 Then Exit Sub
  WScript.Echo "out"
End Sub
S 1
S 2
' expect: in
' expect: in
' expect: out
