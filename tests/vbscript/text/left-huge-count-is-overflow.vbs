' expect: 6
On Error Resume Next
x = Left("abc", 1E10)
WScript.Echo Err.Number
