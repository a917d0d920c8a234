' expect: 94
On Error Resume Next
x = Replace(Null, "a", "b")
WScript.Echo Err.Number
