' expect: 5
On Error Resume Next
x = InStrRev("abc", "c", -2)
WScript.Echo Err.Number
