On Error Resume Next
s = Replace(String(100000, "a"), "a", String(100000, "b"))
WScript.Echo Err.Number, TypeName(s)
' expect: 14 Empty
