Dim a(2)
WScript.Echo LBound(a), UBound(a), TypeName(a(0)), TypeName(a(2))
' expect: 0 2 Empty Empty
a(0) = "first"
a(2) = "last"
WScript.Echo a(0) & a(1) & a(2)
' expect: firstlast
