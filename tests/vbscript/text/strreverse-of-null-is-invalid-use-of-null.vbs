' expect: 94
On Error Resume Next
x = StrReverse(Null)
WScript.Echo Err.Number
