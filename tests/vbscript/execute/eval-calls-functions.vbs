Function Twice(n)
  Twice = n * 2
End Function
WScript.Echo Eval("Twice(21)"), Eval("Len(""abc"")")
' expect: 42 3
