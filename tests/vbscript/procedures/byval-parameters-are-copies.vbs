Sub Increase(ByVal n)
  n = n + 1
  WScript.Echo n
End Sub
x = 5
Increase x
WScript.Echo x
' expect: 6
' expect: 5
