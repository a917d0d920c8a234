' expect: 13
On Error Resume Next
x = Split(Array("a"))
WScript.Echo Err.Number
