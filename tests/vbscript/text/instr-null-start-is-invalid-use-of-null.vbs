' expect: 94
On Error Resume Next
x = InStr(Null, "abc", "c")
WScript.Echo Err.Number
