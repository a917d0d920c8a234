For i = 1 To 5000
  x = Rnd
  If x < 0 Or x >= 1 Then WScript.Echo "out of range", x
Next
WScript.Echo "done"
' expect: done
