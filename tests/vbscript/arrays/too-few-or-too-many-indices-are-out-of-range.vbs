Dim t(2, 2), a(2)
On Error Resume Next
x = t(1)
WScript.Echo Err.Number
' expect: 9
Err.Clear
x = a(1, 1)
WScript.Echo Err.Number
' expect: 9
Err.Clear
t(1, 1, 1) = 0
WScript.Echo Err.Number
' expect: 9
