' expect: 5
On Error Resume Next
x = LeftB("abc", -1)
WScript.Echo Err.Number
