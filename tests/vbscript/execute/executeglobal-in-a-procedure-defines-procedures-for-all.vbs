Sub Define()
  ExecuteGlobal "Function Twice(n) : Twice = n * 2 : End Function"
End Sub
Define
WScript.Echo Twice(6)
' expect: 12
