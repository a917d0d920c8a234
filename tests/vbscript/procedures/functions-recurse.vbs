Function Factorial(n)
  If n <= 1 Then
    Factorial = 1
  Else
    Factorial = n * Factorial(n - 1)
  End If
End Function
WScript.Echo Factorial(5), Factorial(10)
' expect: 120 3628800
