Dim a()
On Error Resume Next
ReDim a(2000000000)
WScript.Echo Err.Number, Err.Description
' expect: 7 Out of memory
