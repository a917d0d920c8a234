Sub Increase(ByRef n)
  n = n + 1
End Sub
x = 5
Increase x
Call Increase(x)
WScript.Echo x
' expect: 7
