' expect: 13
On Error Resume Next
x = Left(, 1)
WScript.Echo Err.Number
