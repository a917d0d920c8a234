On Error Resume Next
x = 5
x = Eval("1 / 0")
WScript.Echo x, Err.Number
' expect: 5 11
