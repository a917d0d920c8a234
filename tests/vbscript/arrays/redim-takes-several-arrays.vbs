ReDim a(1), b(2)
WScript.Echo UBound(a), UBound(b)
' expect: 1 2
