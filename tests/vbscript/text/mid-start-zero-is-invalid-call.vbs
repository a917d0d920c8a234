' expect: 5
On Error Resume Next
x = Mid("abc", 0)
WScript.Echo Err.Number
