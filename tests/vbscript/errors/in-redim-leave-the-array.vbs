Dim a()
ReDim a(1)
a(1) = "kept"
On Error Resume Next
ReDim Preserve a(1 / 0)
WScript.Echo Err.Number, UBound(a), a(1)
' expect: 11 1 kept
