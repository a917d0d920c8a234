Dim a()
ReDim a(3)
WScript.Echo UBound(a)
' expect: 3
n = 2
ReDim a(n * 2)
WScript.Echo UBound(a)
' expect: 4
ReDim a(1, 2)
WScript.Echo UBound(a, 1), UBound(a, 2)
' expect: 1 2
