Function Fails()
  Fails = 99
  Err.Raise 1000
End Function
On Error Resume Next
x = 5
x = Fails() + 1
WScript.Echo x
' expect: 5
