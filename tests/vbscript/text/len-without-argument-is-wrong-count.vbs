' expect: 450
On Error Resume Next
x = Eval("Len()")
WScript.Echo Err.Number
