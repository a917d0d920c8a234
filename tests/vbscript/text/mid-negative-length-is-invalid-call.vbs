' expect: 5
On Error Resume Next
x = Mid("abc", 1, -1)
WScript.Echo Err.Number
