' expect: 13
On Error Resume Next
x = LBound(Null)
WScript.Echo Err.Number
