' expect: 91
On Error Resume Next
x = Len(Nothing)
WScript.Echo Err.Number
