Class C
  Public Function F(n)
    F = n / 0
  End Function
End Class

Set o = New C
x = o.F(1)
' expect error: 11 at 3:4
