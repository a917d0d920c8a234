Dim a(1)
a(0) = "x"
b = a
ReDim Preserve b(3)
WScript.Echo UBound(a), UBound(b), b(0)
' expect: 1 3 x
