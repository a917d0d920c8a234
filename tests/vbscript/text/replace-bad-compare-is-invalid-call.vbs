' expect: 5
On Error Resume Next
x = Replace("a", "a", "b", 1, -1, 9)
WScript.Echo Err.Number
