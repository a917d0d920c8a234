Function F()
  F = 1
End Function
On Error Resume Next
x = F(1)
WScript.Echo Err.Number, Err.Description
' expect: 450 Wrong number of arguments or invalid property assignment
