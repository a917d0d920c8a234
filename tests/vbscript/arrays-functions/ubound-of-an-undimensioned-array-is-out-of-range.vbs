' expect: 9
Dim a()
On Error Resume Next
x = UBound(a)
WScript.Echo Err.Number
