Function Twice(n)
  Twice = n * 2
End Function
Function Apply(operation, n)
  Apply = operation(n)
End Function
Set r = GetRef("Twice")
WScript.Echo r(21), Apply(r, 4), Apply(GetRef("twice"), 5)
' expect: 42 8 10
