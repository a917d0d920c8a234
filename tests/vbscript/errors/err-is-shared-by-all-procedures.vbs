Function Told()
  Told = Err.Number
End Function
On Error Resume Next
x = 1 / 0
WScript.Echo Told()
' expect: 11
