' expect: 9
On Error Resume Next
x = UBound(Array(1), 0)
WScript.Echo Err.Number
