Dim a()
ReDim a(1)
a(0) = "x"
a(1) = "y"
ReDim Preserve a(3)
WScript.Echo a(0), a(1), TypeName(a(3))
' expect: x y Empty
ReDim Preserve a(0)
ReDim Preserve a(1)
WScript.Echo a(0), TypeName(a(1))
' expect: x Empty
