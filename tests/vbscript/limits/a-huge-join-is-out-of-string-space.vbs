Dim a(20000)
On Error Resume Next
s = Join(a, String(100000, "b"))
WScript.Echo Err.Number
' expect: 14
