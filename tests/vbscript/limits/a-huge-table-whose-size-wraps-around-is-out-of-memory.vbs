Dim a()
On Error Resume Next
ReDim a(65535, 65535, 65535, 65535)
WScript.Echo Err.Number
' expect: 7
