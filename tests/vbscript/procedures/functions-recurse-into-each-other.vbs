Function IsEven(ByVal n)
  If n = 0 Then IsEven = True Else IsEven = IsOdd(n - 1)
End Function
Function IsOdd(ByVal n)
  If n = 0 Then IsOdd = False Else IsOdd = IsEven(n - 1)
End Function
WScript.Echo IsEven(10), IsOdd(10), IsOdd(7)
' expect: True False True
