ReDim a("3"), b(1.6)
WScript.Echo UBound(a), UBound(b)
' expect: 3 2
