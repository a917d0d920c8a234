' expect: 94
On Error Resume Next
x = Mid("abc", Null)
WScript.Echo Err.Number
