' expect: 0
' expect: 1
' expect: abc
a = Filter(Array("x", "ab", "y", "abc"), "a")
WScript.Echo LBound(a)
WScript.Echo UBound(a)
WScript.Echo a(1)
