Sub Increase(n)
  n = n + 1
  WScript.Echo n
End Sub
x = 5
Increase x + 1
Increase x & ""
Increase 5
WScript.Echo x
' expect: 7
' expect: 6
' expect: 6
' expect: 5
