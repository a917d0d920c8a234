' expect: 5
On Error Resume Next
x = MidB("abc", 0)
WScript.Echo Err.Number
