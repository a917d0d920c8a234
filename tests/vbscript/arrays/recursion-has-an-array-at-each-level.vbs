Function Depths(n)
  Dim a(0)
  a(0) = n
  If n > 0 Then Depths = Depths(n - 1)
  Depths = Depths & a(0)
End Function
WScript.Echo Depths(3)
' expect: 0123
