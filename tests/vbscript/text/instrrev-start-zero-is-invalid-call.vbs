' expect: 5
On Error Resume Next
x = InStrRev("abc", "c", 0)
WScript.Echo Err.Number
