' expect: 0
' expect: 2
' expect: b
' expect: Double
a = Array(1, "b", 2.5)
WScript.Echo LBound(a)
WScript.Echo UBound(a)
WScript.Echo a(1)
WScript.Echo TypeName(a(2))
