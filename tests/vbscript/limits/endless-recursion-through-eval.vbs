Function Ping()
  Ping = Eval("Pong()")
End Function
Function Pong()
  Pong = Eval("Ping()")
End Function
On Error Resume Next
x = Ping()
WScript.Echo Err.Number
' expect: 28
