' expect: 13
On Error Resume Next
x = UBound("abc")
WScript.Echo Err.Number
