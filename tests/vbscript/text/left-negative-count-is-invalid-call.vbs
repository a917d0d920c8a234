' expect: 5
On Error Resume Next
x = Left("abc", -1)
WScript.Echo Err.Number
