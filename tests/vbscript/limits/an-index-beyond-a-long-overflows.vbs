Dim a(2)
On Error Resume Next
x = a(3000000000)
WScript.Echo Err.Number
' expect: 6
