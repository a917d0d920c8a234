Function F(n)
  WScript.Echo "called with", n
  F = n
End Function
F 1
Call F(2)
' expect: called with 1
' expect: called with 2
