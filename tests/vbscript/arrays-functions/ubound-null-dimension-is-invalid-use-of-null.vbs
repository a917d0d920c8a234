' expect: 94
On Error Resume Next
x = UBound(Array(1), Null)
WScript.Echo Err.Number
