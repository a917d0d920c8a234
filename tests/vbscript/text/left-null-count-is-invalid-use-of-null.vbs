' expect: 94
On Error Resume Next
x = Left("abc", Null)
WScript.Echo Err.Number
