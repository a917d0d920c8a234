Dim a(0)
a(0) = 1
WScript.Echo UBound(a), a(0)
' expect: 0 1
