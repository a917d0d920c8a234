' expect: 5
On Error Resume Next
x = Replace("a", "a", "b", 1, -2)
WScript.Echo Err.Number
