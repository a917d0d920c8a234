Class C
  Public Function F(a, b)
    F = a + b
  End Function
End Class

Set o = New C
On Error Resume Next
x = o.F(1)
WScript.Echo Err.Number
' expect: 450
Err.Clear
x = o.F(1, 2, 3)
WScript.Echo Err.Number
' expect: 450
