' expect: 5
On Error Resume Next
x = Replace("a", "a", "b", 0)
WScript.Echo Err.Number
