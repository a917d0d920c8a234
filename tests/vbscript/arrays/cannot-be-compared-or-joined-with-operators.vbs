a = Array(1)
b = Array(1)
On Error Resume Next
x = (a = b)
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = a & ""
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = a + 1
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = Not a
WScript.Echo Err.Number
' expect: 13
