Function Depth(n)
  If n = 0 Then Depth = 0 Else Depth = Depth(n - 1) + 1
End Function
WScript.Echo Depth(1000)
' expect: 1000
