' expect: 94
On Error Resume Next
x = Replace("a", "a", Null)
WScript.Echo Err.Number
