' Calls: the Fibonacci numbers by plain recursion.
Function Fib(index)
  If index < 2 Then
    Fib = index
  Else
    Fib = Fib(index - 1) + Fib(index - 2)
  End If
End Function

WScript.Echo Fib(27)
