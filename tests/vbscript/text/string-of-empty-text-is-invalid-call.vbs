' expect: 5
On Error Resume Next
x = String(3, "")
WScript.Echo Err.Number
