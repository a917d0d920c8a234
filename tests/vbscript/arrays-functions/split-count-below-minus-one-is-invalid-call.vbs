' expect: 5
On Error Resume Next
x = Split("a", ",", -2)
WScript.Echo Err.Number
