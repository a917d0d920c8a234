Dim a()
On Error Resume Next
ReDim a(100000, 100000, 100000)
WScript.Echo Err.Number
' expect: 7
