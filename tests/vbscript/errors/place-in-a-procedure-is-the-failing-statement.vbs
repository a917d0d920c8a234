Sub S(n)
  WScript.Echo "in"
  n = n / 0
End Sub
S 5
' expect: in
' expect error: 11 at 3:2
