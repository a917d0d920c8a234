Const c = 5
Sub Increase(n)
  n = n + 1
  WScript.Echo n
End Sub
Increase c
WScript.Echo c
' expect: 6
' expect: 5
