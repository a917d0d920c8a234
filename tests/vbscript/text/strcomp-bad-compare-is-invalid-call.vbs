' expect: 5
On Error Resume Next
x = StrComp("a", "b", 3)
WScript.Echo Err.Number
