' expect: 13
On Error Resume Next
x = Left("abc", "x")
WScript.Echo Err.Number
