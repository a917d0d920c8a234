Sub S(a, b)
  WScript.Echo a, b
End Sub
Call S(1, 2)
S 3, 4
' expect: 1 2
' expect: 3 4
