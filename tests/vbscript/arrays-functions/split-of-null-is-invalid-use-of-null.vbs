' expect: 94
On Error Resume Next
x = Split(Null)
WScript.Echo Err.Number
