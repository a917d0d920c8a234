' expect: 14
On Error Resume Next
x = String(2000000000, "a")
WScript.Echo Err.Number
