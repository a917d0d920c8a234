On Error Resume Next
x = 1 / 0
On Error Resume Next
WScript.Echo Err.Number
' expect: 0
