' expect: 5
On Error Resume Next
x = Split("a", ",", -1, 5)
WScript.Echo Err.Number
