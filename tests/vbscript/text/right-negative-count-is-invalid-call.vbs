' expect: 5
On Error Resume Next
x = Right("abc", -1)
WScript.Echo Err.Number
