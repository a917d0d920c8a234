' expect: 2
' expect: 0
a = Array(Array(1, 2), Array(3))
WScript.Echo a(0)(1)
WScript.Echo UBound(a(1))
