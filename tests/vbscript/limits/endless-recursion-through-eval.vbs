' A function's own name with parentheses is a call of it in executed code too.
Function F()
  F = Eval("F()")
End Function
On Error Resume Next
x = F()
WScript.Echo Err.Number
' expect: 28
