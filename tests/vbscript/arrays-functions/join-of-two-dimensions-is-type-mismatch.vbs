' expect: 13
Dim a(1, 1)
On Error Resume Next
x = Join(a)
WScript.Echo Err.Number
