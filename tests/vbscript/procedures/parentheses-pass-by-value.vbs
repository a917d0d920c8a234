Sub Increase(n)
  n = n + 1
End Sub
x = 5
Increase (x)
WScript.Echo x
' expect: 5
Call Increase((x))
WScript.Echo x
' expect: 5
