Function Max(a, b)
  If a > b Then Max = a Else Max = b
End Function
WScript.Echo Max(Max(3, 9), Max(Max(4, 12), 7))
' expect: 12
