Function Factorial(n)
  If n < 2 Then Factorial = 1 Else Factorial = n * Factorial(n - 1)
End Function
WScript.Echo Factorial(7), Factorial(8), Factorial(12), Factorial(13), Factorial(25)
' expect: 5040 40320 479001600 6227020800 1.5511210043331E+25
