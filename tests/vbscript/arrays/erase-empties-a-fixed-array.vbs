Dim a(2)
a(0) = 1 : a(2) = "x"
Erase a
WScript.Echo UBound(a), TypeName(a(0)), TypeName(a(2))
' expect: 2 Empty Empty
