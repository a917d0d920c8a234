Dim a()
On Error Resume Next
ReDim a(3000000000)
WScript.Echo Err.Number
' expect: 6
