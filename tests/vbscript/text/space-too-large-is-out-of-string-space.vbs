' expect: 14
On Error Resume Next
x = Space(2000000000)
WScript.Echo Err.Number
