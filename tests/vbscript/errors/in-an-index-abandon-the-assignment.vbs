Dim a(2)
a(1) = "kept"
On Error Resume Next
a(1 / 0) = "changed"
WScript.Echo Err.Number, a(1)
' expect: 11 kept
