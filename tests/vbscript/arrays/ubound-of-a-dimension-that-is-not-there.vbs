Dim t(1, 2)
On Error Resume Next
n = UBound(t, 3)
WScript.Echo Err.Number
' expect: 9
Err.Clear
n = UBound(t, 0)
WScript.Echo Err.Number
' expect: 9
