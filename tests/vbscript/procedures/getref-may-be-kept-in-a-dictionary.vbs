Function Add(a, b)
  Add = a + b
End Function
Function Multiply(a, b)
  Multiply = a * b
End Function
Set d = CreateObject("Scripting.Dictionary")
d.Add "+", GetRef("Add")
d.Add "*", GetRef("Multiply")
For Each key In d.Keys
  Set f = d(key)
  WScript.Echo key, f(3, 4)
Next
' expect: + 7
' expect: * 12
