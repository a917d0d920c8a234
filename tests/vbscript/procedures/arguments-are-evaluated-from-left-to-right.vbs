Function Tell(n)
  WScript.Echo n
  Tell = n
End Function
Function Sum(a, b, c)
  Sum = a + b + c
End Function
x = Sum(Tell(1), Tell(2), Tell(3))
WScript.Echo x
' expect: 1
' expect: 2
' expect: 3
' expect: 6
