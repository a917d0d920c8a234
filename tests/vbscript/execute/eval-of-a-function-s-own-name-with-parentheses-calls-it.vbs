Function Factorial(n)
  If n < 2 Then Factorial = 1 Else Factorial = n * Eval("Factorial(n - 1)")
End Function
WScript.Echo Factorial(10)
' expect: 3628800
Function Depth(n)
  Depth = n
  If n < 3 Then Depth = Eval("Eval(""Depth(n + 1)"")")
End Function
WScript.Echo Depth(1)
' expect: 3
Function Twice(n)
  Execute "If n > 0 Then Twice = Twice(n - 1) + 2"
End Function
WScript.Echo Twice(5)
' expect: 10
Class C
  Function Down(n)
    If n > 0 Then Down = Eval("Down(n - 1) & n") Else Down = "-"
  End Function
End Class
Set o = New C
WScript.Echo o.Down(3)
' expect: -123
