' expect: 13
On Error Resume Next
x = Filter("abc", "a")
WScript.Echo Err.Number
