Class Math
  Public Function Power(base, n)
    If n = 0 Then
      Power = 1
    Else
      Power = base * Power(base, n - 1)
    End If
  End Function
End Class

Set m = New Math
WScript.Echo m.Power(2, 10)
' expect: 1024
