' expect: 5
On Error Resume Next
x = String(-1, "a")
WScript.Echo Err.Number
