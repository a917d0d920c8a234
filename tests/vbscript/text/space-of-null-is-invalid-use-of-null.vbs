' expect: 94
On Error Resume Next
x = Space(Null)
WScript.Echo Err.Number
