Dim a(4)
a(1.5) = "two"
a(2.5) = a(2.5) & " again"
a(0.5) = "zero"
WScript.Echo a(0), a(2), TypeName(a(1))
' expect: zero two again Empty
