' expect: 0
' expect: a b
a = Split("a b", "")
WScript.Echo UBound(a)
WScript.Echo a(0)
