' expect: 13
On Error Resume Next
x = InStr("abc", "b", 1)
WScript.Echo Err.Number
