Function F(n)
  F = n
  If F > 5 Then F = F * 2
End Function
WScript.Echo F(5), F(6)
' expect: 5 12
