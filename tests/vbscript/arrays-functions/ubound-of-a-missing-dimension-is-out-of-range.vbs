' expect: 9
On Error Resume Next
x = UBound(Array(1), 2)
WScript.Echo Err.Number
