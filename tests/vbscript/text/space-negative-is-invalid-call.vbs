' expect: 5
On Error Resume Next
x = Space(-1)
WScript.Echo Err.Number
