' expect: 5
On Error Resume Next
x = InStr(0, "abc", "c")
WScript.Echo Err.Number
