Sub Show(a, b)
  WScript.Echo a & "," & b
End Sub
Show 1, 2
Call Show(3, 4)
Show (5), 6
Show(7), 8
Show -9, (10)
Show (1) + 2, 3
' expect: 1,2
' expect: 3,4
' expect: 5,6
' expect: 7,8
' expect: -9,10
' expect: 3,3
