' expect: 94
On Error Resume Next
x = Filter(Array("a"), Null)
WScript.Echo Err.Number
