' expect: 94
On Error Resume Next
x = Join(Array("a", Null))
WScript.Echo Err.Number
