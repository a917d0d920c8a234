' expect: 13
On Error Resume Next
x = Join("abc")
WScript.Echo Err.Number
