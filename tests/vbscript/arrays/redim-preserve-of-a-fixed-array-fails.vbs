Dim a(2)
a(1) = 7
On Error Resume Next
ReDim Preserve a(5)
WScript.Echo Err.Number, UBound(a), a(1)
' expect: 10 2 7
