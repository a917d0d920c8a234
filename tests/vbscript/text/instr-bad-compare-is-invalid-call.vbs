' expect: 5
On Error Resume Next
x = InStr(1, "abc", "c", 2)
WScript.Echo Err.Number
