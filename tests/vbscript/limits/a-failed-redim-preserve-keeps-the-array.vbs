Dim a()
ReDim a(1)
a(1) = "kept"
On Error Resume Next
ReDim Preserve a(2000000000)
WScript.Echo Err.Number, UBound(a), a(1)
' expect: 7 1 kept
