Dim a(1)
a(1) = 7
a(0) = a
a(1) = 8
WScript.Echo a(0)(1), a(1), UBound(a(0))
' expect: 7 8 1
