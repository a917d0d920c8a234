' expect: 13
On Error Resume Next
x = UBound(Empty)
WScript.Echo Err.Number
