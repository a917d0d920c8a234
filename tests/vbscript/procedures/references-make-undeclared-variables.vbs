Sub SetIt(n)
  n = 5
End Sub
SetIt fresh
WScript.Echo fresh
' expect: 5
