' expect: 3
' expect: 3
' expect: 5
' expect: 0
Dim a(3, 5)
WScript.Echo UBound(a)
WScript.Echo UBound(a, 1)
WScript.Echo UBound(a, 2)
WScript.Echo LBound(a, 2)
